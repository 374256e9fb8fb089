#pragma once

#include "platform/Task.h"
#include "settingswindow/SettingsServices.h"

#include <QObject>

#include <memory>

namespace quillmere {

/// The settings window: loaded when it is asked for, and gone from memory once it is closed. Asked
/// for again while it is open, it comes to the front. Main thread only.
class SettingsWindow : public QObject
{
    Q_OBJECT

public:
    /// Opens on "QuillmereOpenSettingsRequest".
    explicit SettingsWindow(SettingsServices services);
    ~SettingsWindow() override;

    void open();

private:
    class Content;

    void unload();

    SettingsServices services_;
    std::unique_ptr<Content> content_;
    Task requests_;
    Task closed_;
};

} // namespace quillmere
