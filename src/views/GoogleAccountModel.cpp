#include "views/GoogleAccountModel.h"

#include "google/GoogleAuthManager.h"
#include "settings/SettingsStore.h"
#include "views/PlainText.h"

#include <QPointer>

#include <utility>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype longestError = 400; // characters

QVariantMap step(const QString &text, const QString &label, QLatin1StringView link)
{
    return {{u"text"_s, text}, {u"label"_s, label}, {u"link"_s, QUrl(link)}};
}

} // namespace

GoogleAccountModel::GoogleAccountModel(GoogleAuthManager &authManager, SettingsStore &settings,
                                       QObject *parent)
    : QObject(parent)
    , authManager_(authManager)
    , settings_(settings)
{
    connect(&authManager_, &GoogleAuthManager::signedInEmailChanged, this,
            &GoogleAccountModel::stateChanged);
    connect(&authManager_, &GoogleAuthManager::isSigningInChanged, this,
            &GoogleAccountModel::stateChanged);
    connect(&authManager_, &GoogleAuthManager::clientIDChanged, this,
            &GoogleAccountModel::clientIdChanged);
}

QString GoogleAccountModel::state() const
{
    if (authManager_.isSigningIn())
        return u"signingIn"_s;
    return authManager_.signedInEmail() ? u"signedIn"_s : u"signedOut"_s;
}

QString GoogleAccountModel::email() const
{
    return authManager_.signedInEmail().value_or(QString());
}

QString GoogleAccountModel::errorText() const
{
    return errorText_;
}

QString GoogleAccountModel::clientId() const
{
    return settings_.googleClientID.get();
}

void GoogleAccountModel::setClientId(const QString &clientId)
{
    settings_.googleClientID.set(clientId.trimmed());
}

bool GoogleAccountModel::needsClientId() const
{
    return !authManager_.reversedClientID();
}

QVariantList GoogleAccountModel::steps() const
{
    return {
        step(tr("Make a project; any name will do."), tr("New project"),
             "https://console.cloud.google.com/projectcreate"_L1),
        step(tr("Switch on the Gmail API in it."), tr("Gmail API"),
             "https://console.cloud.google.com/apis/library/gmail.googleapis.com"_L1),
        step(tr("And the Google Calendar API."), tr("Calendar API"),
             "https://console.cloud.google.com/apis/library/calendar-json.googleapis.com"_L1),
        step(tr("Fill in the consent screen: audience External, and yourself as a test user."),
             tr("Consent screen"), "https://console.cloud.google.com/auth/overview"_L1),
        step(tr("Make a client of the type iOS, the only one that needs no secret, with the bundle "
                "ID com.quillmere.Quillmere. Paste its client ID below."),
             tr("New client"), "https://console.cloud.google.com/auth/clients/create"_L1)};
}

QString GoogleAccountModel::remark() const
{
    return tr("Reading mail is what Google calls a restricted scope. For a project of your own it "
              "warns once that the app is not verified. While the project is being tested it signs "
              "you out every seven days; published, it does not. To let more than 100 people use "
              "one client ID, Google asks for a verification and a security assessment each year, "
              "which is why everyone brings their own.");
}

void GoogleAccountModel::signIn()
{
    setErrorText({});
    authManager_.signIn([self = QPointer(this)](const auto &outcome) {
        if (self && !outcome && outcome.error().kind != AuthError::Kind::Cancelled)
            self->setErrorText(text(outcome.error()));
    });
}

void GoogleAccountModel::cancel()
{
    authManager_.cancelSignIn();
}

void GoogleAccountModel::signOut()
{
    setErrorText({});
    authManager_.signOut([self = QPointer(this)](const auto &removed) {
        if (self && !removed)
            self->setErrorText(
                tr("The keyring is locked and still holds the sign-in. Unlock it and sign out "
                   "again, or remove Quillmere's access on your Google account's page."));
    });
}

void GoogleAccountModel::setErrorText(const QString &text)
{
    const QString shown = plainText(text, longestError);
    if (std::exchange(errorText_, shown) != shown)
        Q_EMIT errorTextChanged();
}

} // namespace quillmere
