#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "app/AppCapabilities.h"

namespace quillmere {

class LocalPersistenceStore;

/// The Dashboard: what is known, how fresh it is, and what this build may do. UI thread only.
class DashboardViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")

 public:
  using Clock = std::function<QDateTime()>;

  DashboardViewModel(LocalPersistenceStore& store, const AppCapabilities& appCapabilities,
                     Clock clock = &QDateTime::currentDateTimeUtc, QObject* parent = nullptr);

 Q_SIGNALS:
  void viewInstalledWanted();

 private:
  LocalPersistenceStore& store_;
  AppCapabilities appCapabilities_;
  Clock clock_;
};

}  // namespace quillmere
