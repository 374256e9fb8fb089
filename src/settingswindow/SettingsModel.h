#pragma once

#include "platform/Task.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsPreview.h"

#include <QColor>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillmere {

class PageNotes;
struct SettingsServices;

/// What the settings window shows: the pages, the groups of the one that is open, and what was
/// searched for. Main thread only.
class SettingsModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QVariantList pages READ pages CONSTANT FINAL)
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString pageId READ pageId NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString absence READ absence NOTIFY pageChanged FINAL)
    Q_PROPERTY(QVariantList groups READ groups NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canReset READ canReset NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(QVariantList results READ results NOTIFY queryChanged FINAL)
    Q_PROPERTY(quillmere::SettingsPreview *preview READ preview CONSTANT FINAL)
    Q_PROPERTY(bool dark READ isDark NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool reducedMotion READ reducesMotion NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(QObject *googleAccount READ googleAccount CONSTANT FINAL)

public:
    explicit SettingsModel(SettingsServices &services, QObject *parent = nullptr);
    ~SettingsModel() override;

    QVariantList pages() const;
    int page() const { return page_; }
    void setPage(int page);
    QString pageId() const; ///< the page's stored text
    QString title() const;
    QString absence() const; ///< why the page has nothing to set; empty if it has
    QVariantList groups() const { return groups_; }
    bool canReset() const;
    const QString &query() const { return query_; }
    void setQuery(const QString &query);
    /// Pages and settings that every word of the query is found in, those with it in their title
    /// first.
    QVariantList results() const;
    SettingsPreview *preview() { return &preview_; }
    bool isDark() const;
    bool highContrast() const;
    bool reducesMotion() const;
    QColor accent() const;
    QObject *googleAccount() const;

    /// Back to the defaults, everything on this page.
    Q_INVOKABLE void resetPage();

    /// Opens the page of a result and points out its row.
    Q_INVOKABLE void reveal(const QVariantMap &result);

Q_SIGNALS:
    void pageChanged();
    void queryChanged();
    void appearanceChanged();
    void revealed(const QString &key);

private:
    void rebuild();
    SettingRow *makeRow(const SettingEntry &entry);
    void settingChanged(const QString &key);
    void localChanged();

    SettingsServices &services_;
    int page_ = 0;
    QVariantList groups_;
    std::unique_ptr<QObject> rows_; ///< owns the rows of the open page
    std::unique_ptr<PageNotes> notes_;
    SettingsPreview preview_;
    QString query_;
    Task local_;
    Task appearance_;
};

} // namespace quillmere
