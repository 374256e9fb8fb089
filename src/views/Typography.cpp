#include "views/Typography.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace quillmere {

namespace {

constexpr double pointsPerInch = 72;
constexpr double defaultDotsPerInch = 96;

/// Qt takes whole pixels only, but fractions of a point.
QFont desktopFont(double pixels)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen ? screen->logicalDotsPerInchY() : defaultDotsPerInch;
    QFont font = QGuiApplication::font();
    font.setPointSizeF(pixels * pointsPerInch / dotsPerInch);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace

Typography::Typography(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

QFont Typography::title() const
{
    QFont font = desktopFont(13.5);
    font.setWeight(QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, -0.1);
    return font;
}

QFont Typography::text() const
{
    return desktopFont(12);
}

QFont Typography::headline() const
{
    QFont font = desktopFont(17);
    font.setWeight(QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, -0.3);
    return font;
}

QFont Typography::display() const
{
    QFont font = desktopFont(44);
    font.setWeight(QFont::Light);
    font.setLetterSpacing(QFont::AbsoluteSpacing, -1);
    return font;
}

bool Typography::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        Q_EMIT changed();
    return QObject::eventFilter(watched, event);
}

} // namespace quillmere
