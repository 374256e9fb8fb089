#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <utility>

namespace quillmere {

/// What the ID of every client of the installed-app kind ends with.
inline constexpr QLatin1StringView clientIDSuffix{".apps.googleusercontent.com"};

/// The proof that who redeems a code is who asked for it (RFC 7636, S256).
struct PKCEPair {
    QByteArray verifier;  ///< 64 characters
    QByteArray challenge; ///< 43 characters
};

/// `random`: 48 bytes.
PKCEPair makePKCEPair(const QByteArray &random);

/// The labels of an installed-app client ID in reverse order, which is also the URL scheme of its
/// redirect; nothing for any other text.
std::optional<QString> reversedClientID(const QString &clientID);

/// Names and values in the order they are sent in.
using FormFields = QList<std::pair<QLatin1StringView, QString>>;

/// "name=value&name=value", percent-encoded.
QByteArray formEncoded(const FormFields &fields);

/// The page that asks the user. `server` is the endpoint.
QUrl authorisationUrl(const QUrl &server, const QString &clientID, const QString &redirectURI,
                      const QByteArray &challenge);

/// An endpoint's address, to which a path is appended.
QString serverAddress(const QUrl &server);

} // namespace quillmere
