#include "island/IslandDebugLogger.h"
#include "platform/linux/core/QtRunLoop.h"
#include "support/ManualRunLoop.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <vector>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

using Category = IslandDebugLogger::Category;

class IslandDebugLoggerTest : public testing::Test
{
protected:
    QString path(const char *name) const
    {
        return logDir_ + QLatin1Char('/') + QLatin1String(name);
    }

    void write(const char *name, const QByteArray &content)
    {
        QDir().mkpath(logDir_);
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A run of the program: starts, logs and ends.
    template <class F>
    void run(F logSomething)
    {
        IslandDebugLogger logger(loop_, library_.path());
        logger.setEnabled(true);
        logSomething(logger);
    }

    ManualRunLoop loop_;
    QTemporaryDir library_;
    QString logDir_ = library_.filePath(u"Logs/Quillmere"_s);
};

qsizetype banners(const QByteArray &text)
{
    return text.count("\n========== Quillmere Session Start ");
}

TEST_F(IslandDebugLoggerTest, WritesNothingAndFormatsNothingWhileOff)
{
    bool formatted = false;
    {
        IslandDebugLogger logger(loop_, library_.path());
        const auto format = [&] {
            formatted = true;
            return u"never"_s;
        };
        logger.log(Category::General, format);
        logger.setEnabled(true);
        logger.setEnabledCategories({Category::Progress, Category::Airplay});
        logger.log(Category::General, format);
        logger.setEnabled(false);
        logger.log(Category::Progress, u"never"_s);
    }
    EXPECT_FALSE(formatted);
    ASSERT_TRUE(QFile::exists(path("debug.log")));
    EXPECT_EQ(read("debug.log"), QByteArray());
}

TEST_F(IslandDebugLoggerTest, WritesBannerOncePerRunAndAppendsAcrossRuns)
{
    const QDateTime time(QDate(2026, 3, 4), QTime(14, 3, 7, 512));
    loop_.setWallClock(
        std::chrono::system_clock::time_point(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
    unsigned first = 0;
    run([&](IslandDebugLogger &logger) {
        logger.log(Category::Progress, u"NEW_TRACK seeding base=12.00"_s);
        first = __LINE__ - 1;
        logger.log(Category::Collapse, [] { return u"Ünï"_s; });
    });
    const QByteArray tag = "IslandDebugLoggerTest:";
    const QByteArray expected =
        "\n========== Quillmere Session Start 2026-03-04 14:03:07 ==========\n"
        "[14:03:07.512] [PROGRESS] [" +
        tag + QByteArray::number(first) +
        "] NEW_TRACK seeding base=12.00\n"
        "[14:03:07.512] [COLLAPSE] [" +
        tag + QByteArray::number(first + 2) + "] Ünï\n";
    EXPECT_EQ(read("debug.log"), expected);

    run([](IslandDebugLogger &logger) { logger.log(Category::General, u"again"_s); });
    EXPECT_TRUE(read("debug.log").startsWith(expected));
    EXPECT_EQ(banners(read("debug.log")), 2);
}

TEST_F(IslandDebugLoggerTest, IsPrivateToTheUser)
{
    run([](IslandDebugLogger &) {});
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    for (const QString &made : {path("debug.log"), logDir_, QFileInfo(logDir_).path()})
        EXPECT_EQ(QFile::permissions(made) & others, QFile::Permissions()) << qPrintable(made);
}

TEST_F(IslandDebugLoggerTest, RotatesAtTheLimitAndNotBelow)
{
    const auto logTo = [this](qsizetype size, const QString &message) {
        write("debug.log", QByteArray(size, 'x'));
        run([&](IslandDebugLogger &logger) { logger.log(Category::General, message); });
    };
    write("debug.old.log", "older");
    logTo(IslandDebugLogger::maxFileSize - 1, u"fits"_s);
    EXPECT_EQ(read("debug.old.log"), "older");
    EXPECT_TRUE(read("debug.log").startsWith('x'));
    logTo(IslandDebugLogger::maxFileSize, u"a\n[00:00] forged\r\t\u2028b\u0085c\u001b[2J"_s);
    EXPECT_EQ(read("debug.old.log").size(), IslandDebugLogger::maxFileSize);
    EXPECT_TRUE(read("debug.log").endsWith("] a [00:00] forged   b c [2J\n"));
    EXPECT_EQ(read("debug.log").count('\n'), 3) << "a message is one line";

    QFile::remove(path("debug.old.log"));
    QDir().mkpath(path("debug.old.log/occupied"));
    logTo(IslandDebugLogger::maxFileSize, u"bounded all the same"_s);
    EXPECT_LT(read("debug.log").size(), 1000);
}

TEST_F(IslandDebugLoggerTest, RotatesInTheMiddleOfARun)
{
    const QString message(999, QLatin1Char('m'));
    run([&](IslandDebugLogger &logger) {
        for (int i = 0; i < 3000; ++i) {
            logger.log(Category::General, message);
            if (i % 200 == 0)
                logger.drain();
        }
    });
    const auto oldSize = read("debug.old.log").size();
    EXPECT_GE(oldSize, IslandDebugLogger::maxFileSize);
    EXPECT_LT(oldSize, IslandDebugLogger::maxFileSize + 1100);
    EXPECT_EQ(banners(read("debug.old.log")), 1);
    EXPECT_EQ(banners(read("debug.log")), 1);
    EXPECT_EQ(read("debug.old.log").count("] mmm") + read("debug.log").count("] mmm"), 3000);
}

TEST_F(IslandDebugLoggerTest, StartsAnewWhenTheFileIsDeleted)
{
    run([&](IslandDebugLogger &logger) {
        logger.log(Category::General, u"gone"_s);
        logger.drain();
        QFile::remove(path("debug.log"));
        logger.log(Category::General, u"kept"_s);
    });
    EXPECT_EQ(banners(read("debug.log")), 1);
    EXPECT_TRUE(read("debug.log").endsWith("] kept\n"));
}

TEST_F(IslandDebugLoggerTest, DropsAndCountsWhatASlowDiskCannotTake)
{
    const QString message(10'000, QLatin1Char('m'));
    run([&](IslandDebugLogger &logger) {
        logger.log(Category::General, QString(IslandDebugLogger::maxPendingSize, QLatin1Char('h')));
        logger.drain();
        for (int i = 0; i < 1000; ++i)
            logger.log(Category::General, message);
        logger.log(Category::General, u"small enough, but out of turn"_s);
        logger.drain();
        logger.log(Category::General, u"and on"_s);
    });
    const QByteArray text = read("debug.log");
    EXPECT_FALSE(text.contains("hhh"));
    EXPECT_TRUE(text.contains("] dropped 1 lines\n"));
    const auto written = text.count("] mmm");
    EXPECT_GT(written, 10);
    EXPECT_TRUE(text.contains(u"] dropped %1 lines\n"_s.arg(1001 - written).toUtf8()));
    EXPECT_TRUE(text.endsWith("] and on\n"));
}

TEST_F(IslandDebugLoggerTest, SurvivesPlacesItCannotWriteTo)
{
    const QString file = library_.filePath(u"file"_s);
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    QDir().mkpath(library_.filePath(u"taken/Logs/Quillmere/debug.log"_s));
    for (const QString &place :
         {file, library_.filePath(u"taken"_s), u"/proc/nowhere"_s, u"/dev/null"_s}) {
        IslandDebugLogger logger(loop_, place);
        logger.setEnabled(true);
        logger.log(Category::General, u"lost"_s);
        logger.drain();
    }
    EXPECT_EQ(QFileInfo(file).size(), 0);
}

TEST_F(IslandDebugLoggerTest, KeepsEveryThreadsOrderAndWholeLines)
{
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    QtRunLoop loop;
    constexpr std::size_t threadCount = 4;
    constexpr int lineCount = 500;
    constexpr qsizetype total = threadCount * std::size_t{lineCount};
    {
        IslandDebugLogger logger(loop, library_.path());
        logger.setEnabled(true);
        std::vector<std::jthread> threads;
        threads.reserve(threadCount);
        for (std::size_t thread = 0; thread < threadCount; ++thread)
            threads.emplace_back([&logger, thread] {
                for (int i = 0; i < lineCount; ++i)
                    logger.log(Category::Poller, [&] { return u"t%1 %2"_s.arg(thread).arg(i); });
            });
    }
    static const QRegularExpression shape(QStringLiteral(
        R"(^\[\d\d:\d\d:\d\d\.\d\d\d\] \[POLLER\] \[IslandDebugLoggerTest:\d+\] t(\d) (\d+)$)"));
    std::array<int, threadCount> next{};
    const QStringList lines = QString::fromUtf8(read("debug.log")).split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2 + total + 1);
    for (const QString &line : lines.mid(2, total)) {
        const auto match = shape.match(line);
        ASSERT_TRUE(match.hasMatch()) << qPrintable(line);
        EXPECT_EQ(match.captured(2).toInt(), next.at(match.captured(1).toUInt())++);
    }
}

TEST_F(IslandDebugLoggerTest, ReadsCategoriesByTheirTexts)
{
    for (const Category category : IslandDebugLogger::allCategories()) {
        const QString text = IslandDebugLogger::categoryText(category);
        EXPECT_EQ(IslandDebugLogger::categoryFromText(text), category);
        EXPECT_EQ(IslandDebugLogger::categoryFromText(text.toLower()), category);
    }
    EXPECT_EQ(
        IslandDebugLogger::categoriesFromTexts({u"AirPlay"_s, u"?"_s, QString(), u"GENERAL"_s}),
        (QSet{Category::Airplay, Category::General}));
}

} // namespace
} // namespace quillmere
