#include "platform/linux/desktop/AutostartLoginItem.h"

#include "platform/RunLoop.h"
#include "platform/linux/desktop/Files.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qint64 largestEntry = qint64{1} << 16; // bytes

QByteArray execLine(const QString &program)
{
    return "Exec=" + execValue(program).toUtf8();
}

QByteArray entry(const QString &program)
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quillmere\n"
           "Icon=com.quillmere.Quillmere\n" +
           execLine(program) +
           "\n"
           "Terminal=false\n"
           "StartupNotify=false\n";
}

bool startsProgram(const QByteArray &contents, const QString &program)
{
    const auto lines = contents.split('\n');
    return lines.contains(execLine(program)) && !lines.contains("Hidden=true") &&
           !lines.contains("X-GNOME-Autostart-enabled=false");
}

void writeEntry(const QString &path, const QString &program)
{
    const auto present = files::read(path, largestEntry);
    if (present.state == files::Contents::State::Unreadable ||
        startsProgram(present.bytes, program))
        return;
    files::makePrivateDirectory(QFileInfo(path).absolutePath());
    files::replace(path, entry(program));
}

/// Inside quotes these need a backslash.
bool needsEscape(QChar character)
{
    return QStringLiteral("\"`$\\").contains(character);
}

bool isReserved(QChar character)
{
    return QStringLiteral(" \t\n\r\"'\\><~|&;$*?#()`").contains(character);
}

QString quoted(const QString &argument)
{
    QString result;
    for (const QChar character : argument) {
        if (needsEscape(character))
            result += u'\\';
        result += character;
    }
    return u'"' + result + u'"';
}

/// The escapes every text value of a desktop entry has, on top of the quoting.
QString escaped(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\"));
    text.replace(u'\n', QStringLiteral("\\n"));
    text.replace(u'\r', QStringLiteral("\\r"));
    return text.replace(u'\t', QStringLiteral("\\t"));
}

} // namespace

QString execValue(const QString &program)
{
    const bool plain = std::ranges::none_of(program, isReserved);
    QString value = plain ? program : quoted(program);
    value.replace(u'%', QStringLiteral("%%")); // a single one would begin a field code
    return escaped(value);
}

AutostartLoginItem::AutostartLoginItem(RunLoop &runLoop, const QString &configHome,
                                       const QString &program)
    : path_(configHome + QStringLiteral("/autostart/com.quillmere.Quillmere.desktop"))
    , program_(program)
    , queue_(runLoop.makeSerialQueue(QStringLiteral("login item")))
{
}

AutostartLoginItem::~AutostartLoginItem() = default;

void AutostartLoginItem::registerItem()
{
    queue_->async([path = path_, program = program_] { writeEntry(path, program); });
}

void AutostartLoginItem::unregisterItem()
{
    queue_->async([path = path_] { QFile::remove(path); });
}

} // namespace quillmere
