#pragma once

#include <QtNetwork/QSslConfiguration>

namespace quillmere::test {

/// What a test server shows its clients.
enum class ServerIdentity {
  /// Signed for this machine by the authority that this process trusts.
  trusted,
  /// Signed for this machine by nobody.
  selfSigned,
  /// Signed by the trusted authority for a machine of another name.
  otherHost,
  /// Signed by the trusted authority for the host of the public catalog, for a client that reaches
  /// it through a proxy of ours.
  catalogHost,
};

/// Makes this process trust the tests' own authority beside the system's: from then on a client
/// needs no exception to talk to a test server. Certificates are made once per process, by the
/// command `openssl`, and are gone with it. Any thread.
void trustTestAuthority();

/// What a server needs to show `identity`. Any thread.
[[nodiscard]] QSslConfiguration serverConfiguration(ServerIdentity identity);

/// The authority's certificate as PEM, for a client in another process.
[[nodiscard]] QByteArray testAuthority();

}  // namespace quillmere::test
