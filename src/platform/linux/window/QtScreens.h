#pragma once

#include "platform/Listeners.h"
#include "platform/Screens.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class QScreen;

namespace quillmere {

/// The screens Qt sees. Needs the QGuiApplication.
class QtScreens : public QObject, public Screens
{
public:
    explicit QtScreens(const QString &sysfsRoot = QStringLiteral("/sys"));

    QList<ScreenInfo> screens() const override;
    QPointF pointerPosition() const override;
    Task onParametersChanged(std::function<void()> listener) override;

private:
    void watch(QScreen *screen);
    void scheduleNotification();
    ScreenInfo describe(const QScreen &screen) const;

    QStringList machineNames_;
    Listeners<> listeners_;
    QTimer notification_;
};

/// Whether a connector of this name leads to a panel inside the machine.
bool isInternalConnector(const QString &name);

} // namespace quillmere
