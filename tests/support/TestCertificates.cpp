#include "support/TestCertificates.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslKey>

#include <map>
#include <mutex>

#include "support/ToolOutput.h"

namespace quillmere::test {
namespace {

/// A folder in which `openssl` makes an authority and certificates.
class Workshop {
 public:
  Workshop() {
    run({QStringLiteral("-subj"), QStringLiteral("/CN=Test authority"), QStringLiteral("-addext"),
         QStringLiteral("basicConstraints=critical,CA:TRUE"), QStringLiteral("-addext"),
         QStringLiteral("keyUsage=critical,keyCertSign"), QStringLiteral("-keyout"),
         path(QStringLiteral("authority.key")), QStringLiteral("-out"),
         path(QStringLiteral("authority.pem"))});
  }

  /// A certificate for `names`, signed by the authority or by itself.
  QSslConfiguration certificate(const QString& name, const QString& names, bool isSigned) const {
    QStringList arguments = {
        QStringLiteral("-subj"),   QStringLiteral("/CN=Test server"),
        QStringLiteral("-addext"), QStringLiteral("subjectAltName=") + names,
        QStringLiteral("-addext"), QStringLiteral("basicConstraints=critical,CA:FALSE"),
        QStringLiteral("-keyout"), path(name + QStringLiteral(".key")),
        QStringLiteral("-out"),    path(name + QStringLiteral(".pem"))};
    if (isSigned) {
      arguments << QStringLiteral("-CA") << path(QStringLiteral("authority.pem"))
                << QStringLiteral("-CAkey") << path(QStringLiteral("authority.key"));
    }
    run(arguments);
    QSslConfiguration configuration;
    configuration.setLocalCertificate(QSslCertificate(read(name + QStringLiteral(".pem"))));
    configuration.setPrivateKey(QSslKey(read(name + QStringLiteral(".key")), QSsl::Ec));
    return configuration;
  }

  QByteArray read(const QString& name) const {
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
  }

 private:
  QString path(const QString& name) const { return folder_.filePath(name); }

  static void run(const QStringList& arguments) {
    const QStringList newKey = {
        QStringLiteral("req"),      QStringLiteral("-x509"),
        QStringLiteral("-newkey"),  QStringLiteral("ec"),
        QStringLiteral("-pkeyopt"), QStringLiteral("ec_paramgen_curve:prime256v1"),
        QStringLiteral("-nodes"),   QStringLiteral("-days"),
        QStringLiteral("2")};
    (void)toolOutput(QStringLiteral("openssl"), newKey + arguments);
  }

  QTemporaryDir folder_;
};

struct Certificates {
  QByteArray authority;
  std::map<ServerIdentity, QSslConfiguration> servers;
};

Certificates make() {
  const Workshop workshop;
  const auto here = QStringLiteral("IP:127.0.0.1,DNS:localhost");
  const auto elsewhere = QStringLiteral("DNS:elsewhere.example");
  const auto catalog = QStringLiteral("DNS:formulae.brew.sh");
  return {
      .authority = workshop.read(QStringLiteral("authority.pem")),
      .servers = {
          {ServerIdentity::trusted, workshop.certificate(QStringLiteral("trusted"), here, true)},
          {ServerIdentity::selfSigned,
           workshop.certificate(QStringLiteral("selfsigned"), here, false)},
          {ServerIdentity::otherHost,
           workshop.certificate(QStringLiteral("other"), elsewhere, true)},
          {ServerIdentity::catalogHost,
           workshop.certificate(QStringLiteral("catalog"), catalog, true)},
      }};
}

const Certificates& certificates() {
  static const Certificates made = make();
  return made;
}

}  // namespace

void trustTestAuthority() {
  static std::once_flag once;
  std::call_once(once, [] {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificate(QSslCertificate(testAuthority()));
    QSslConfiguration::setDefaultConfiguration(configuration);
  });
}

QSslConfiguration serverConfiguration(ServerIdentity identity) {
  return certificates().servers.at(identity);
}

QByteArray testAuthority() {
  return certificates().authority;
}

}  // namespace quillmere::test
