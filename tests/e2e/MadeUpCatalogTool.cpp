#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QStringList>

#include "support/GeneratedCatalog.h"

// Makes both catalog documents with as many records each as the second word says, in the folder
// that the first one names.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) {
    return 2;
  }
  const int count = arguments[2].toInt();
  QFile formulae(arguments[1] + QStringLiteral("/formula.json"));
  QFile casks(arguments[1] + QStringLiteral("/cask.json"));
  const bool isWritten = formulae.open(QFile::WriteOnly) && casks.open(QFile::WriteOnly) &&
                         formulae.write(quillmere::generatedFormulaDocument(count)) > 0 &&
                         casks.write(quillmere::generatedCaskDocument(count)) > 0;
  return isWritten ? 0 : 1;
}
