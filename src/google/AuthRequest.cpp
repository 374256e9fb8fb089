#include "google/AuthRequest.h"

#include <QCryptographicHash>

#include <algorithm>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView scopes{"openid email "
                                   "https://www.googleapis.com/auth/gmail.readonly "
                                   "https://www.googleapis.com/auth/calendar.readonly"};

QByteArray urlSafe(const QByteArray &bytes)
{
    return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

/// It goes into an address and into a desktop entry.
bool isSchemeCharacter(QChar letter)
{
    return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z') ||
           (letter >= u'0' && letter <= u'9') || letter == u'-' || letter == u'.' || letter == u'+';
}

} // namespace

PKCEPair makePKCEPair(const QByteArray &random)
{
    const QByteArray verifier = urlSafe(random);
    return {verifier, urlSafe(QCryptographicHash::hash(verifier, QCryptographicHash::Sha256))};
}

std::optional<QString> reversedClientID(const QString &clientID)
{
    if (!clientID.endsWith(clientIDSuffix) || clientID.size() == clientIDSuffix.size() ||
        !std::ranges::all_of(clientID, isSchemeCharacter))
        return std::nullopt;
    QStringList labels = clientID.split(u'.');
    std::ranges::reverse(labels);
    return labels.join(u'.');
}

QByteArray formEncoded(const FormFields &fields)
{
    QByteArray body;
    for (const auto &[name, value] : fields) {
        if (!body.isEmpty())
            body += '&';
        body += QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
    }
    return body;
}

QUrl authorisationUrl(const QUrl &server, const QString &clientID, const QString &redirectURI,
                      const QByteArray &challenge)
{
    const QByteArray query = formEncoded({{"client_id"_L1, clientID},
                                          {"redirect_uri"_L1, redirectURI},
                                          {"response_type"_L1, u"code"_s},
                                          {"scope"_L1, scopes},
                                          {"code_challenge"_L1, QString::fromLatin1(challenge)},
                                          {"code_challenge_method"_L1, u"S256"_s}});
    return QUrl(serverAddress(server) + "/o/oauth2/v2/auth?"_L1 + QString::fromLatin1(query));
}

QString serverAddress(const QUrl &server)
{
    QString address = server.toString();
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}

} // namespace quillmere
