#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <ostream>

// How a failed expectation shows Qt's texts: as texts and not as lists of bytes.
QT_BEGIN_NAMESPACE

inline void PrintTo(const QString& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}

QT_END_NAMESPACE
