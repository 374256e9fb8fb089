#pragma once

#include "platform/LoginItem.h"

#include <QString>

#include <memory>

namespace quillmere {

class RunLoop;
class SerialQueue;

/// The login item as an entry of the desktop's autostart directory. An entry that already starts
/// this program is left alone, with whatever the user added to it.
class AutostartLoginItem : public LoginItem
{
public:
    /// `configHome`: the directory that holds "autostart". `program`: absolute path.
    AutostartLoginItem(RunLoop &runLoop, const QString &configHome, const QString &program);
    ~AutostartLoginItem() override;

    void registerItem() override;
    void unregisterItem() override;

private:
    const QString path_;
    const QString program_;
    std::unique_ptr<SerialQueue> queue_;
};

/// The program as an Exec value: quoted where the desktop entry rules ask for it.
QString execValue(const QString &program);

} // namespace quillmere
