#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The island's type: the desktop's own font in a few fixed sizes (the island does not grow with
/// the text). Follows the desktop when it changes its font.
class Typography : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Type)
    QML_SINGLETON
    Q_PROPERTY(QFont title READ title NOTIFY changed)
    Q_PROPERTY(QFont text READ text NOTIFY changed)
    Q_PROPERTY(QFont headline READ headline NOTIFY changed)
    Q_PROPERTY(QFont display READ display NOTIFY changed)

public:
    explicit Typography(QObject *parent = nullptr);

    QFont title() const;    ///< the main line of a HUD
    QFont text() const;     ///< everything else
    QFont headline() const; ///< the main line of a page
    QFont display() const;  ///< the one large thing on a page

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void changed();
};

} // namespace quillmere
