#pragma once

#include "settingswindow/SettingEntry.h"

#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace quillmere {

/// A line of a page: a setting with its control, or something to know or to do. Main thread only.
class SettingRow : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the model")
    Q_PROPERTY(QString key READ key CONSTANT FINAL)
    Q_PROPERTY(QString control READ control CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString explanation READ explanation NOTIFY textChanged FINAL)
    Q_PROPERTY(QString warning READ warning NOTIFY textChanged FINAL)
    Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY textChanged FINAL)
    Q_PROPERTY(QVariant value READ value NOTIFY valueChanged FINAL)
    Q_PROPERTY(double from READ from CONSTANT FINAL)
    Q_PROPERTY(double to READ to CONSTANT FINAL)
    Q_PROPERTY(double step READ step CONSTANT FINAL)
    Q_PROPERTY(QStringList choices READ choices CONSTANT FINAL)
    Q_PROPERTY(QStringList choiceTitles READ choiceTitles CONSTANT FINAL)

public:
    /// Of a setting whose choices are stored as `choices`.
    SettingRow(const SettingEntry &entry, QStringList choices, QObject *parent);
    /// Something to know; with a button title, something to do.
    SettingRow(QString id, QString title, QObject *parent);

    /// Stores what the user has chosen.
    std::function<void(const QVariant &value)> onChange;
    std::function<void()> onActivate;

    const QString &key() const { return key_; }
    QString control() const; ///< "switch", "slider", "segments", "text", "number" or "note"
    const QString &title() const { return title_; }
    const QString &explanation() const { return explanation_; }
    const QString &warning() const { return warning_; } ///< why it has no effect
    const QString &buttonTitle() const { return buttonTitle_; }
    const QVariant &value() const { return value_; }
    double from() const { return entry_.range.from; }
    double to() const { return entry_.range.to; }
    double step() const { return entry_.range.step; }
    const QStringList &choices() const { return choices_; }
    const QStringList &choiceTitles() const { return choiceTitles_; }
    SettingNeed need() const { return entry_.need; }
    bool isLocal() const { return entry_.isLocal; }

    void setValue(const QVariant &value);
    void setExplanation(const QString &text);
    void setWarning(const QString &text);
    void setButtonTitle(const QString &text);

    /// The user chose `value`; that of a slider falls on a whole step.
    Q_INVOKABLE void change(const QVariant &value);
    Q_INVOKABLE void activate();
    Q_INVOKABLE QString display(double value) const; ///< a value of the range, as people read it

Q_SIGNALS:
    void valueChanged();
    void textChanged();

private:
    QVariant fitted(const QVariant &value) const;
    void set(QString &member, const QString &text);

    const SettingEntry entry_;
    const QString key_;
    const QString title_;
    const bool isSetting_;
    QString explanation_;
    QString warning_;
    QString buttonTitle_;
    QVariant value_;
    QStringList choices_;
    QStringList choiceTitles_;
};

} // namespace quillmere
