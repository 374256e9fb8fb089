#include "ctl/BusJson.h"
#include "ctl/IslandClient.h"
#include "ctl/PropertyWatch.h"
#include "platform/linux/core/UnixSignals.h"
#include "platform/linux/dbus/IslandProperties.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <cstdio>

using namespace quillmere;

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

QString tr(const char *text)
{
    return QCoreApplication::translate("quillmerectl", text);
}

bool print(const QByteArray &line)
{
    return std::printf("%s\n", line.constData()) >= 0 && std::fflush(stdout) == 0;
}

int fail(ExitCode code, const QString &text)
{
    std::fprintf(stderr, "quillmerectl: %s\n", qUtf8Printable(text));
    return code;
}

int refuseUsage(const QString &text)
{
    return fail(WrongUsage, text + QLatin1Char('\n') + tr("Try: quillmerectl --help"));
}

QString helpText()
{
    QStringList properties;
    for (const IslandProperty &property : islandProperties)
        properties.append(property.name);
    return tr("Talks to the Quillmere that runs in this session.\n"
              "\n"
              "  quillmerectl action NAME [PARAMETER]  ask for an action\n"
              "  quillmerectl perform INTENT [KEY=VALUE...]\n"
              "                                        do it and print the answer\n"
              "  quillmerectl get [PROPERTY]           print a property, or all, as JSON\n"
              "  quillmerectl watch [PROPERTY]         print it now and whenever it changes,\n"
              "                                        one JSON object a line\n"
              "  quillmerectl --help | --version\n"
              "\n"
              "Actions: show-island, toggle-island, refresh-now-playing, check-for-updates,\n"
              "play-pause, next-track, previous-track, start-pomodoro, stop-pomodoro,\n"
              "skip-pomodoro, start-countdown [MINUTES], stop-countdown, sign-in-to-google,\n"
              "sign-out-of-google, settings, quit.\n"
              "Intents: StartPomodoroIntent, StopPomodoroIntent, SkipPomodoroIntent,\n"
              "StartCountdownTimerIntent [minutes=NUMBER], StopCountdownTimerIntent,\n"
              "ToggleIslandIntent.\n"
              "Properties: %1.\n"
              "\n"
              "Exits with 1 if Quillmere is not running or says no, with 2 if called wrongly.")
        .arg(properties.join(QStringLiteral(", ")));
}

/// Prints what `shown` makes of the answer, if there is one to print.
int askOnce(const QDBusMessage &message,
            const std::function<QByteArray(const QVariantList &)> &shown)
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return fail(Failed, tr("there is no session bus"));
    const BusReply reply = ask(bus, message);
    if (!reply)
        return fail(Failed, describe(reply.error()));
    if (shown && !print(shown(*reply)))
        return Failed;
    return Done;
}

int action(const QStringList &arguments)
{
    if (arguments.isEmpty() || arguments.size() > 2)
        return refuseUsage(tr("action takes a name and at most one parameter"));
    QVariantList parameter;
    if (arguments.size() == 2)
        parameter.append(toParameter(arguments.at(1)));
    return askOnce(actionMessage(arguments.at(0), parameter), {});
}

int perform(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return refuseUsage(tr("perform takes an intent"));
    QVariantMap parameters;
    for (const QString &argument : arguments.mid(1)) {
        const qsizetype equals = argument.indexOf(u'=');
        if (equals < 1)
            return refuseUsage(tr("\"%1\" is no KEY=VALUE").arg(argument));
        parameters.insert(argument.left(equals), toParameter(argument.mid(equals + 1)));
    }
    return askOnce(performMessage(arguments.first(), parameters),
                   [](const QVariantList &answer) { return answer.value(0).toString().toUtf8(); });
}

int get(const QString &property)
{
    if (property.isEmpty())
        return askOnce(getAllMessage(),
                       [](const QVariantList &answer) { return toJsonLine(toProperties(answer)); });
    return askOnce(getMessage(property),
                   [](const QVariantList &answer) { return toJsonLine(answer.value(0)); });
}

int watch(const QString &property)
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return fail(Failed, tr("there is no session bus"));
    const UnixSignals signalsEndUs([](int) { QCoreApplication::exit(Done); });
    PropertyWatch properties(bus, property);
    properties.onValue = [](const QString &name, const QVariant &value) {
        if (!print(toJsonLine(QVariantMap{{name, value}})))
            QCoreApplication::exit(Failed);
    };
    properties.onFailure = [](const QString &error) {
        QCoreApplication::exit(fail(Failed, error));
    };
    properties.start();
    return QCoreApplication::exec();
}

int readProperty(const QStringList &arguments, int (*command)(const QString &property))
{
    const QString property = arguments.value(0);
    if (arguments.size() > 1)
        return refuseUsage(tr("one property at a time, or all of them"));
    if (!arguments.isEmpty() && !islandProperty(property))
        return refuseUsage(tr("there is no property \"%1\"").arg(property));
    return command(property);
}

int run(const QStringList &arguments)
{
    const QString command = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (command == QLatin1StringView("action"))
        return action(rest);
    if (command == QLatin1StringView("perform"))
        return perform(rest);
    if (command == QLatin1StringView("get"))
        return readProperty(rest, &get);
    if (command == QLatin1StringView("watch"))
        return readProperty(rest, &watch);
    if (command == QLatin1StringView("--help"))
        return print(helpText().toUtf8()) ? Done : Failed;
    if (command == QLatin1StringView("--version"))
        return print("quillmerectl " QUILLMERE_VERSION) ? Done : Failed;
    return refuseUsage(command.isEmpty() ? tr("what shall be done?")
                                         : tr("there is no command \"%1\"").arg(command));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return run(QCoreApplication::arguments().mid(1));
}
