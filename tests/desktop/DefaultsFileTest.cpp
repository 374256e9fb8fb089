#include "platform/linux/desktop/FileUserDefaults.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/RealFiles.h"

#include <QFileInfo>
#include <QProcess>

#include <gmock/gmock.h>

#include <atomic>
#include <random>
#include <sys/stat.h>
#include <thread>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const QString settingsFile = u"defaults.json"_s;
const QString asides = settingsFile + u".unreadable-*"_s;

class DefaultsFileTest : public RealFiles
{
protected:
    FileUserDefaults &open()
    {
        defaults.emplace(loop, path(settingsFile));
        observer =
            defaults->onExternalChange([this](const QStringList &keys) { heard.append(keys); });
        return *defaults;
    }
    bool isLink() const { return QFileInfo(path(settingsFile)).isSymLink(); }
    mode_t mode(const QString &file) const
    {
        struct stat status = {};
        ::stat(qPrintable(path(file)), &status);
        return status.st_mode & 07777;
    }

    std::optional<FileUserDefaults> defaults;
    Task observer;
    QStringList heard;
};

TEST_F(DefaultsFileTest, KeepsTypesOrderAndEverythingItDoesNotKnow)
{
    const QByteArray text = R"({
    "zebra": 18446744073709551615,
    "flag": true,
    "big": 9007199254740993,
    "small": 0.1,
    "whole": 2.0,
    "nothing": null,
    "nested": {
        "b": [
            1,
            {
                "a": "ä"
            }
        ],
        "a": -1e+300
    },
    "text": "7"
})";
    write(settingsFile, text);
    auto &file = open();
    EXPECT_EQ(file.object(u"flag"_s), QVariant(true));
    EXPECT_EQ(file.object(u"big"_s), QVariant(qint64{9007199254740993}));
    EXPECT_EQ(file.object(u"whole"_s).typeId(), QMetaType::Double);
    EXPECT_EQ(file.object(u"text"_s), QVariant(u"7"_s));
    EXPECT_FALSE(file.object(u"nothing"_s).isValid());

    file.setObject(u"text"_s, u"8"_s);
    file.setObject(u"added"_s, qint64{5});
    file.flush();
    EXPECT_EQ(read(settingsFile),
              QByteArray(text).replace("\"7\"\n}", "\"8\",\n    \"added\": 5\n}\n"));
    file.removeObject(u"zebra"_s);
    file.flush();
    EXPECT_FALSE(read(settingsFile).contains("zebra"));
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(DefaultsFileTest, RefusesWhatAFileCannotHold)
{
    auto &file = open();
    QVariant deep = 1;
    for (int i = 0; i < 40; ++i)
        deep = QVariantList{deep};
    file.setObject(u"nan"_s, qQNaN());
    file.setObject(u"deep"_s, deep);
    file.setObject(u"huge"_s, QString(2'000'000, u'x'));
    file.setObject(u"fine"_s, 1);
    file.flush();
    EXPECT_EQ(read(settingsFile), "{\n    \"fine\": 1\n}\n");
    EXPECT_THAT(log.take(), SizeIs(3));
}

TEST_F(DefaultsFileTest, NewFilesAreForTheUserAlone)
{
    FileUserDefaults file(loop, path(u"a/b/local.json"_s));
    file.setObject(u"key"_s, true);
    file.flush();
    EXPECT_EQ(mode(u"a/b/local.json"_s), 0600U);
    EXPECT_EQ(mode(u"a"_s), 0700U);
}

TEST_F(DefaultsFileTest, LinksAreFollowedWhateverTheyLeadTo)
{
    QDir(directory.path()).mkdir(u"dotfiles"_s);
    QFile::link(u"dotfiles/real"_s, path(u"hop"_s));
    QFile::link(u"hop"_s, path(settingsFile));
    for (const QByteArray content : {"{\"key\": 1}", "", "nonsense"}) {
        SCOPED_TRACE(content.constData());
        write(u"dotfiles/real"_s, content);
        ::chmod(qPrintable(path(u"dotfiles/real"_s)), 0640);
        open().setObject(u"key"_s, 2);
        defaults->flush();
        EXPECT_EQ(read(u"dotfiles/real"_s), "{\n    \"key\": 2\n}\n");
        EXPECT_TRUE(isLink());
        EXPECT_EQ(mode(u"dotfiles/real"_s), content == "nonsense" ? 0600U : 0640U);
    }
    EXPECT_THAT(QDir(path(u"dotfiles"_s)).entryList({u"real.unreadable-*"_s}), SizeIs(1));
    replace(u"dotfiles/real"_s, "{\"key\": 3}");
    advance(1s);
    EXPECT_THAT(heard, ElementsAre(u"key"_s)) << "edits behind the link are seen";

    QFile::remove(path(u"dotfiles/real"_s));
    open().setObject(u"key"_s, 4);
    defaults->flush();
    EXPECT_EQ(read(u"dotfiles/real"_s), "{\n    \"key\": 4\n}\n") << "a dangling link is filled";
}

TEST_F(DefaultsFileTest, ReportsTheKeysThatOthersChangeAndOnlyThose)
{
    write(settingsFile, R"({"a": 1, "b": 2, "c": 3})");
    auto &file = open();
    file.setObject(u"b"_s, 20);
    advance(1s);
    EXPECT_THAT(heard, IsEmpty()) << "own writes are no news";

    replace(settingsFile, R"({"a": 10, "b": 20, "d": 4})");
    advance(1s);
    EXPECT_THAT(heard, ElementsAre(u"a"_s, u"c"_s, u"d"_s));
    EXPECT_EQ(file.object(u"a"_s), QVariant(10));
    EXPECT_FALSE(file.object(u"c"_s).isValid());

    heard.clear();
    write(settingsFile, R"({"a": 11, "b": 20, "d": 4})");
    advance(1s);
    EXPECT_THAT(heard, ElementsAre(u"a"_s)) << "written in place";

    heard.clear();
    replace(u"neighbour.json"_s, "{}");
    replace(settingsFile, R"({"d": 4.0, "b": 20, "a": 11})");
    advance(1s);
    EXPECT_THAT(heard, IsEmpty()) << "the same values";
}

TEST_F(DefaultsFileTest, AnEditAtTheSameMomentSurvivesOurWrite)
{
    write(settingsFile, R"({"ours": 1, "theirs": 1})");
    auto &file = open();
    replace(settingsFile, R"({"ours": 7, "theirs": 2, "new": 3})");
    file.setObject(u"ours"_s, 2);
    advance(1s);
    EXPECT_EQ(read(settingsFile), "{\n    \"ours\": 2,\n    \"theirs\": 2,\n    \"new\": 3\n}\n");
    EXPECT_THAT(heard, ElementsAre(u"new"_s, u"theirs"_s));
    EXPECT_EQ(file.object(u"ours"_s), QVariant(2));
}

TEST_F(DefaultsFileTest, AChangeMadeBeforeTheNewsOfAnEditArriveWins)
{
    write(settingsFile, R"({"key": 1})");
    auto &file = open();
    replace(settingsFile, R"({"key": 2})");
    file.setObject(u"other"_s, 1);
    file.flush(); // the edit has been read, its news wait in the run loop
    file.setObject(u"key"_s, 3);
    advance(1s);
    EXPECT_EQ(file.object(u"key"_s), QVariant(3));
    EXPECT_EQ(read(settingsFile), "{\n    \"key\": 3,\n    \"other\": 1\n}\n");
}

TEST_F(DefaultsFileTest, MemoryAndFileAgreeAfterEditsFromBothSides)
{
    QtRunLoop qt;
    FileUserDefaults file(qt, path(settingsFile));
    std::atomic<bool> stop = false;
    std::thread editor([&] {
        for (int i = 0; !stop; ++i)
            replace(
                settingsFile,
                QByteArray(R"({"shared": %, "theirs": %})").replace('%', QByteArray::number(-i)));
    });
    int round = 0;
    const Task writes = qt.every(1ms, 0ms, [&] { file.setObject(u"shared"_s, qint64{++round}); });
    while (round < 300)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    stop = true;
    editor.join();
    file.setObject(u"last"_s, true);
    const auto agree = [&] {
        auto object = parseObject(read(settingsFile)).value_or(Json::object());
        return object.contains("last") && toVariant(object["shared"]) == file.object(u"shared"_s) &&
               toVariant(object["theirs"]) == file.object(u"theirs"_s);
    };
    const Instant end = qt.now() + 20s;
    while (!agree() && qt.now() < end)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_TRUE(agree());
}

struct Hostile {
    const char *what;
    std::function<void(const QString &path)> make;
};

void fill(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray manyKeys()
{
    QByteArray text = "{\"k\":0";
    for (int i = 0; text.size() < 1'000'000; ++i)
        text += ",\"" + QByteArray::number(i, 36) + "\":0";
    return text + '}';
}

const Hostile hostileFiles[] = {
    {"truncated", [](const QString &path) { fill(path, R"({"showVolumeHUD": fal)"); }},
    {"not UTF-8", [](const QString &path) { fill(path, "{\"a\": \"\xff\"}"); }},
    {"beyond all numbers", [](const QString &path) { fill(path, "{\"a\": 1e999}"); }},
    {"100k levels", [](const QString &path) { fill(path, "{\"a\":" + QByteArray(100'000, '[')); }},
    {"100k keys", [](const QString &path) { fill(path, manyKeys()); }},
    {"100 MB",
     [](const QString &path) {
         fill(path, "{");
         ASSERT_EQ(::truncate(qPrintable(path), off_t{100} << 20), 0);
     }},
    {"a directory",
     [](const QString &path) {
         QDir().mkpath(path);
         fill(path + u"/keep"_s, "me");
     }},
    {"a pipe", [](const QString &path) { ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0); }},
    {"a link to itself", [](const QString &path) { QFile::link(path, path); }},
};

TEST_F(DefaultsFileTest, WhatCannotBeUsedIsSetAsideAndNeverOverwritten)
{
    for (const auto &hostile : hostileFiles) {
        SCOPED_TRACE(hostile.what);
        QStringList inodes;
        const auto inodeOf = [&](const QString &file) {
            struct stat status = {};
            ::lstat(qPrintable(path(file)), &status);
            return QString::number(status.st_ino);
        };
        for (int round = 0; round < 2; ++round) {
            hostile.make(path(settingsFile));
            inodes.append(inodeOf(settingsFile));
            auto &file = open();
            EXPECT_FALSE(file.object(u"a"_s).isValid());
            const auto lines = log.take();
            ASSERT_THAT(lines, SizeIs(1));
            EXPECT_TRUE(lines[0].startsWith("[Quillmere] "_L1)) << qPrintable(lines[0]);
            file.setObject(u"key"_s, round);
            file.flush();
            EXPECT_EQ(read(settingsFile), "{\n    \"key\": " + QByteArray::number(round) + "\n}\n");
            defaults.reset();
            QFile::remove(path(settingsFile));
        }
        const auto kept = names(asides);
        ASSERT_THAT(kept, SizeIs(2));
        EXPECT_THAT(inodes, testing::UnorderedElementsAre(inodeOf(kept[0]), inodeOf(kept[1])));
        for (const auto &aside : kept) {
            QFile::remove(path(aside));
            QDir(path(aside)).removeRecursively();
        }
    }
}

TEST_F(DefaultsFileTest, AnEditorMayTakeItsTime)
{
    write(settingsFile, R"({"key": 1})");
    auto &file = open();
    for (const QByteArray half : {"{\"key\": ", ""}) {
        write(settingsFile, half);
        advance(1s);
        file.setObject(u"other"_s, qint64(half.size()));
        advance(500ms);
        EXPECT_EQ(file.object(u"key"_s), QVariant(1));
        EXPECT_EQ(read(settingsFile), half) << "nothing is written over a half-written file";
        write(settingsFile, R"({"key": 1})");
        advance(1300ms);
    }
    advance(5s);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_THAT(names(asides), IsEmpty());
    EXPECT_EQ(read(settingsFile), "{\n    \"key\": 1,\n    \"other\": 0\n}\n");
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(DefaultsFileTest, ALiveFileThatStaysBrokenIsSetAsideAndWrittenAfresh)
{
    write(settingsFile, R"({"key": 1, "foreign": [2]})");
    auto &file = open();
    write(settingsFile, "{\"key\": ");
    advance(1s);
    file.setObject(u"added"_s, true);
    advance(5s);
    ASSERT_THAT(names(asides), SizeIs(1));
    EXPECT_EQ(read(names(asides)[0]), "{\"key\": ");
    EXPECT_EQ(read(settingsFile), "{\n    \"key\": 1,\n    \"foreign\": [\n        2\n    ],\n"
                                  "    \"added\": true\n}\n");
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_THAT(log.take(), SizeIs(1));
}

TEST_F(DefaultsFileTest, ADeletedFileMeansTheDefaults)
{
    write(settingsFile, R"({"key": 1})");
    auto &file = open();
    QFile::remove(path(settingsFile));
    advance(1s);
    EXPECT_EQ(file.object(u"key"_s), QVariant(1));
    advance(2s);
    EXPECT_THAT(heard, ElementsAre(u"key"_s));
    EXPECT_FALSE(file.object(u"key"_s).isValid());
    EXPECT_FALSE(QFile::exists(path(settingsFile)));
}

TEST_F(DefaultsFileTest, ADirectoryThatGoesAndComesBackIsWatchedAgain)
{
    const QString deep = u"config/defaults.json"_s;
    FileUserDefaults file(loop, path(deep));
    file.setObject(u"key"_s, 1);
    advance(1s);
    QDir(path(u"config"_s)).removeRecursively();
    advance(5s);
    EXPECT_FALSE(QFile::exists(path(u"config"_s)));
    file.setObject(u"key"_s, 2);
    advance(1s);
    replace(deep, R"({"key": 3})");
    advance(1s);
    EXPECT_EQ(file.object(u"key"_s), QVariant(3));
}

TEST_F(DefaultsFileTest, WithoutAWritableDiskMemoryGoesOn)
{
    FileUserDefaults file(loop, u"/proc/nowhere/defaults.json"_s);
    file.setObject(u"key"_s, 1);
    advance(1s);
    file.setObject(u"key"_s, 2);
    advance(1s);
    file.flush();
    EXPECT_EQ(file.object(u"key"_s), QVariant(2));
    EXPECT_THAT(log.take(), SizeIs(1));
}

TEST_F(DefaultsFileTest, WhatCannotBeSetAsideIsLeftAlone)
{
    QFile::link(u"/proc/version"_s, path(settingsFile)); // neither JSON nor movable
    auto &file = open();
    file.setObject(u"key"_s, 1);
    file.flush();
    advance(5s);
    EXPECT_EQ(file.object(u"key"_s), QVariant(1));
    EXPECT_TRUE(isLink());
    EXPECT_THAT(names(u"*"_s), ElementsAre(settingsFile));
    EXPECT_THAT(log.take(), SizeIs(1));

    QFile::remove(path(settingsFile)); // somebody clears the way
    advance(5s);
    EXPECT_EQ(read(settingsFile), "{\n    \"key\": 1\n}\n");
}

constexpr int blobSize = 200'000;

/// Not a test: the program that the next one kills.
TEST(DefaultsFileWriter, DISABLED_WritesUntilKilled)
{
    int argc = 1;
    char program[] = "writer";
    char *argv[] = {program, nullptr};
    const QCoreApplication application(argc, argv);
    QtRunLoop loop;
    FileUserDefaults file(loop, qEnvironmentVariable("QUILLMERE_TEST_FILE"));
    for (int round = 0;; ++round) {
        file.setObject(u"blob"_s, QString(blobSize, QChar(u'a' + round % 26)));
        file.flush();
        std::putchar('@'); // what GoogleTest itself never prints
        std::fflush(stdout);
    }
}

TEST_F(DefaultsFileTest, AKillAtAnyMomentLeavesAWholeFile)
{
    write(settingsFile, R"({"foreign": "stays", "blob": ""})");
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUILLMERE_TEST_FILE"_s, path(settingsFile));
    std::mt19937 random(20240229);
    std::uniform_int_distribution<int> microseconds(0, 20'000);
    QSet<QChar> seen;
    for (int kill = 0; kill < 50; ++kill) {
        QProcess writer;
        writer.setProcessEnvironment(environment);
        writer.start(u"/proc/self/exe"_s, {u"--gtest_filter=DefaultsFileWriter.*"_s,
                                           u"--gtest_also_run_disabled_tests"_s});
        const qsizetype writes = 1 + kill % 3;
        qsizetype written = 0;
        while (written < writes && writer.waitForReadyRead(20'000))
            written += writer.readAllStandardOutput().count('@');
        ASSERT_GE(written, writes);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());

        const auto object = parseObject(read(settingsFile));
        ASSERT_TRUE(object) << qPrintable(object.error());
        const auto blob = toVariant(object->at("blob")).toString();
        ASSERT_EQ(blob.size(), blobSize);
        ASSERT_EQ(blob.count(blob[0]), blobSize);
        seen.insert(blob[0]);
        ASSERT_EQ(object->at("foreign"), "stays");
    }
    EXPECT_GT(seen.size(), 1) << "every kill hit the same moment";
}

} // namespace
