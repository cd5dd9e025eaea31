#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtGui/QGuiApplication>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>

#include "StoryProbe.h"
#include "app/QuillmereApp.h"

namespace quillmere::test {
namespace {

/// Tells the probe of all that the UI thread handles.
class WatchedApplication : public QGuiApplication {
 public:
  using QGuiApplication::QGuiApplication;

  void setProbe(StoryProbe* probe) { probe_ = probe; }

  bool notify(QObject* receiver, QEvent* event) override {
    if (probe_ == nullptr || receiver == probe_ || receiver->thread() != thread()) {
      return QGuiApplication::notify(receiver, event);
    }
    probe_->begin(receiver, *event);
    const bool isHandled = QGuiApplication::notify(receiver, event);
    probe_->end();
    return isHandled;
  }

 private:
  StoryProbe* probe_ = nullptr;
};

/// Trusts the authority of the tests beside the system's, as a user does who installs one.
void trust(const QString& authority) {
  QFile file(authority);
  if (!file.open(QFile::ReadOnly)) {
    qFatal("%s: %s", qUtf8Printable(authority), qUtf8Printable(file.errorString()));
  }
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.addCaCertificate(QSslCertificate(&file));
  QSslConfiguration::setDefaultConfiguration(configuration);
}

int run(WatchedApplication& application, const QString& reportFile) {
  StoryProbe probe;
  application.setProbe(&probe);
  int status = EXIT_FAILURE;
  {
    QuillmereApp app;
    if (app.open()) {
      probe.watch(app.window());
      status = QGuiApplication::exec();
    }
  }
  application.setProbe(nullptr);
  QSaveFile report(reportFile);
  if (!reportFile.isEmpty() && report.open(QSaveFile::WriteOnly)) {
    report.write(probe.report());
    report.commit();
  }
  return status;
}

}  // namespace
}  // namespace quillmere::test

// The program as it ships, watched, and with one more authority to trust.
int main(int argc, char** argv) {
  quillmere::QuillmereApp::prepare();
  quillmere::test::WatchedApplication application(argc, argv);
  const QString authority = qEnvironmentVariable("QUILLMERE_STORY_AUTHORITY");
  if (!authority.isEmpty()) {
    quillmere::test::trust(authority);
  }
  return quillmere::test::run(application, qEnvironmentVariable("QUILLMERE_STORY_REPORT"));
}
