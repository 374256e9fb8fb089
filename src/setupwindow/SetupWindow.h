#pragma once

#include <QQmlEngine>
#include <QQuickWindow>

#include <functional>
#include <memory>

namespace quillmere {

class SetupModel;

/// The window of the first run, with an engine of its own that goes with it.
class SetupWindow : public QQuickWindow
{
public:
    /// `model` outlives the window.
    explicit SetupWindow(SetupModel &model);
    ~SetupWindow() override;

    /// Centred on the screen, in front and with the keyboard.
    void present();

    /// The user closed it.
    std::function<void()> onClosed;

protected:
    bool event(QEvent *event) override;

private:
    void announceStep();

    QQmlEngine engine_;
    std::unique_ptr<QQuickItem> content_;
};

} // namespace quillmere
