#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class GoogleAuthManager;
class SettingsStore;

/// The user's Google account as the settings read it.
class GoogleAccountModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString state READ state NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString email READ email NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged FINAL)
    Q_PROPERTY(QString clientId READ clientId WRITE setClientId NOTIFY clientIdChanged FINAL)
    Q_PROPERTY(bool needsClientId READ needsClientId NOTIFY clientIdChanged FINAL)
    Q_PROPERTY(QVariantList steps READ steps CONSTANT FINAL)
    Q_PROPERTY(QString remark READ remark CONSTANT FINAL)

public:
    GoogleAccountModel(GoogleAuthManager &authManager, SettingsStore &settings,
                       QObject *parent = nullptr);

    QString state() const;     ///< "signedOut", "signingIn" or "signedIn"
    QString email() const;     ///< empty: not signed in
    QString errorText() const; ///< what became of the last request; empty: nothing to say
    QString clientId() const;  ///< the user's own
    void setClientId(const QString &clientId);
    bool needsClientId() const; ///< there is none, or it cannot be one
    QVariantList steps() const; ///< to a client ID of one's own: maps of text, label and link
    QString remark() const;     ///< what Google thinks of programs that read mail

    Q_INVOKABLE void signIn();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void signOut();

    /// Asks for a page in the browser.
    Q_INVOKABLE void open(const QUrl &link) { Q_EMIT linkActivated(link); }

Q_SIGNALS:
    void stateChanged();
    void errorTextChanged();
    void clientIdChanged();
    void linkActivated(const QUrl &link);

private:
    void setErrorText(const QString &text);

    GoogleAuthManager &authManager_;
    SettingsStore &settings_;
    QString errorText_;
};

} // namespace quillmere
