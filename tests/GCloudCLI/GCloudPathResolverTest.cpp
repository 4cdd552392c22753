// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudPathResolver.h"

#include "GCloudCLI/FileDescriptor.h"
#include "GCloudModels/AppError.h"
#include "tests/support/ScriptFolder.h"

#include <QScopeGuard>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

/// A home directory of its own, where nothing is to be found unless the test puts it there, and a
/// script in the place of the login shell.
class GCloudPathResolverTest : public testing::Test
{
protected:
    ScriptFolder home;
    std::optional<QString> customPath;
    SearchPlaces places{
        .homeDirectory = home.path(),
        .wellKnown = {},
        .startUpFiles = SearchPlaces::ofThisUser().startUpFiles,
        .shell = u"/nonexistent/shell"_s,
        .shellTimeLimit = 1h,
    };

    [[nodiscard]] QString installed(const QString &name) const
    {
        return home.writeScript(name, "");
    }

    [[nodiscard]] QString sdkIn(const QString &folder) const
    {
        return installed(folder + u"/google-cloud-sdk/bin/gcloud"_s);
    }

    void startUpFile(const QString &name, const QByteArray &content) const
    {
        home.write(name, content);
    }

    /// Runs `body` when it is asked, with the folder of the test in $dir and gcloud in $gcloud.
    void shell(const QByteArray &body)
    {
        const QByteArray gcloud = installed(u"bin/gcloud"_s).toUtf8();
        places.shell = home.writeScript(
            u"shell"_s, "dir='" + home.path().toUtf8() + "'; gcloud='" + gcloud + "'\n" + body);
    }

    [[nodiscard]] QString resolve(std::stop_token stop = {}) const
    {
        return GCloudPathResolver(customPath, places).resolve(std::move(stop));
    }

    void expectNotFound(std::stop_token stop = {}) const
    {
        try {
            ADD_FAILURE() << "found " << qPrintable(resolve(std::move(stop)));
        } catch (const AppError &error) {
            EXPECT_EQ(error, AppError::gcloudNotFound());
        }
    }
};

TEST_F(GCloudPathResolverTest, NothingAnywhereIsReportedWithItsMessage)
{
    try {
        ADD_FAILURE() << "found " << qPrintable(resolve());
    } catch (const AppError &error) {
        EXPECT_EQ(error.errorDescription(),
                  u"gcloud CLI not found. Please install the Google Cloud SDK."_s);
    }
}

TEST_F(GCloudPathResolverTest, AnExecutableSettingGoesFirst)
{
    customPath = installed(u"mine"_s);
    places.wellKnown = { installed(u"known"_s) };

    EXPECT_EQ(resolve(), *customPath);
}

TEST_F(GCloudPathResolverTest, ASettingThatIsNotExecutableIsIgnored)
{
    places.wellKnown = { installed(u"known"_s) };
    const QString folder = home.path();
    for (const QString &path :
         { home.write(u"plain"_s, "text"), folder, u"/nonexistent"_s, u""_s, u"/bin/sh\0x"_s }) {
        customPath = path;

        EXPECT_EQ(resolve(), places.wellKnown.first()) << qPrintable(path);
    }
}

TEST_F(GCloudPathResolverTest, TellsByWhichStageItWasFound)
{
    using Stage = GCloudPathResolver::Stage;
    const auto stage = [this]() -> std::optional<Stage> {
        const auto found = GCloudPathResolver(customPath, places).find();
        return found ? std::optional(found->stage) : std::nullopt;
    };
    EXPECT_EQ(stage(), std::nullopt);

    shell("echo \"$gcloud\"");
    EXPECT_EQ(stage(), Stage::loginShell);

    (void)sdkIn(u"sdk"_s);
    startUpFile(u".bashrc"_s,
                "source '" + home.path().toUtf8() + "/sdk/google-cloud-sdk/path.bash.inc'\n");
    EXPECT_EQ(stage(), Stage::startUpFile);

    places.wellKnown = { installed(u"known"_s) };
    EXPECT_EQ(stage(), Stage::wellKnownLocation);

    customPath = installed(u"mine"_s);
    EXPECT_EQ(stage(), Stage::setting);
}

TEST_F(GCloudPathResolverTest, TheTildeOfASettingIsNotExpanded)
{
    customPath = u"~/mine"_s;
    ASSERT_FALSE(installed(u"mine"_s).isEmpty());

    expectNotFound();
}

TEST_F(GCloudPathResolverTest, ASettingMayNameAFolderThatIsCalledTilde)
{
    const auto restore = qScopeGuard([old = QDir::currentPath()] { QDir::setCurrent(old); });
    ASSERT_TRUE(QDir::setCurrent(places.homeDirectory));
    ASSERT_FALSE(installed(u"~/mine"_s).isEmpty());
    customPath = u"~/mine"_s;

    EXPECT_EQ(resolve(), u"~/mine"_s);
}

TEST_F(GCloudPathResolverTest, TheFirstOfTwoWellKnownLocationsIsTaken)
{
    places.wellKnown
        = { installed(u"opt/homebrew/bin/gcloud"_s), installed(u"usr/local/bin/gcloud"_s) };

    EXPECT_EQ(resolve(), places.wellKnown.first());
}

TEST_F(GCloudPathResolverTest, AWellKnownLocationIsReturnedWithItsTildeExpanded)
{
    places.wellKnown = SearchPlaces::ofThisUser().wellKnown;
    const QString sdk = sdkIn(u"Downloads"_s);

    EXPECT_EQ(resolve(), sdk);
}

TEST_F(GCloudPathResolverTest, WhatIsNoProgramIsNotTaken)
{
    const QString link = home.path(u"dangling"_s);
    ASSERT_TRUE(QFile::link(u"/nonexistent"_s, link));
    places.wellKnown = { home.path(), home.write(u"plain"_s, "text"), link, installed(u"real"_s) };

    EXPECT_EQ(resolve(), places.wellKnown.last());
}

TEST_F(GCloudPathResolverTest, AGcloudThatIsInstalledLaterIsFoundWithoutARestart)
{
    places.wellKnown = { home.path(u"gcloud"_s) };
    const GCloudPathResolver resolver(customPath, places);
    EXPECT_THROW(static_cast<void>(resolver.resolve()), AppError);

    const QString path = installed(u"gcloud"_s);

    EXPECT_EQ(resolver.resolve(), path);
}

TEST_F(GCloudPathResolverTest, EachStartUpFileCountsInItsOrder)
{
    const QStringList names{ u".profile"_s, u".bashrc"_s, u".bash_profile"_s, u".zprofile"_s,
                             u".zshrc"_s };
    for (const QString &name : names) {
        const QString sdk = sdkIn(u"sdk"_s + name);
        const QString folder = home.path(u"sdk"_s + name + u'/');
        startUpFile(name, "source '" + folder.toUtf8() + "google-cloud-sdk/path.zsh.inc'\n");

        EXPECT_EQ(resolve(), folder + u"/google-cloud-sdk/bin/gcloud"_s) << "doubled slash kept";
        EXPECT_EQ(QFileInfo(resolve()), QFileInfo(sdk));
    }
}

TEST_F(GCloudPathResolverTest, TheTildeOfAStartUpFileIsExpanded)
{
    ASSERT_FALSE(sdkIn(u"tools"_s).isEmpty());
    startUpFile(u".bashrc"_s, "source ~/tools/google-cloud-sdk/path.bash.inc\n");

    EXPECT_EQ(resolve(), home.path(u"tools//google-cloud-sdk/bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, TheScanGoesOnAfterALineWhoseCandidateFails)
{
    ASSERT_FALSE(sdkIn(u"good"_s).isEmpty());
    const QByteArray folder = home.path(u"good"_s).toUtf8();
    startUpFile(u".zshrc"_s,
                "# comment\n"
                "source \"$HOME/google-cloud-sdk/path.zsh.inc\"\r"
                "source '"
                    + folder + "/google-cloud-sdk/path.zsh.inc'");

    EXPECT_EQ(resolve(), home.path(u"good//google-cloud-sdk/bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, TheScanGoesOnAfterAFileWithoutACandidate)
{
    ASSERT_FALSE(sdkIn(u"good"_s).isEmpty());
    startUpFile(u".zshrc"_s, "source /gone/google-cloud-sdk/path.zsh.inc\n");
    startUpFile(u".bashrc"_s, "source ~/good/google-cloud-sdk/path.bash.inc\n");

    EXPECT_EQ(resolve(), home.path(u"good//google-cloud-sdk/bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AStartUpFileThatIsNoTextIsSkipped)
{
    ASSERT_FALSE(sdkIn(u"bad"_s).isEmpty());
    ASSERT_FALSE(sdkIn(u"good"_s).isEmpty());
    startUpFile(u".zshrc"_s, "source ~/bad/google-cloud-sdk/path.zsh.inc\n# caf\xe9\n");
    ASSERT_EQ(::mkfifo(QFile::encodeName(home.path(u".zprofile"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QDir(places.homeDirectory).mkdir(u".bash_profile"_s));
    startUpFile(u".profile"_s, "source ~/good/google-cloud-sdk/path.bash.inc\n");

    EXPECT_EQ(resolve(), home.path(u"good//google-cloud-sdk/bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, TheLoginShellIsNotAskedWhenAFileTells)
{
    shell("echo asked > $dir/log; echo $gcloud");
    ASSERT_FALSE(sdkIn(u"good"_s).isEmpty());
    startUpFile(u".profile"_s, "source ~/good/google-cloud-sdk/path.bash.inc\n");

    EXPECT_EQ(resolve(), home.path(u"good//google-cloud-sdk/bin/gcloud"_s));
    EXPECT_EQ(home.read(u"log"_s), "");
}

TEST_F(GCloudPathResolverTest, TheLoginShellIsAskedInThreeWays)
{
    shell("printf '[%s]' \"$@\" >> $dir/log; echo >> $dir/log; exit 1");

    expectNotFound();

    EXPECT_EQ(home.read(u"log"_s),
              "[-i][-c][which gcloud]\n"
              "[-l][-i][-c][which gcloud]\n"
              "[-l][-c][which gcloud]\n");
}

TEST_F(GCloudPathResolverTest, TheLoginShellsFirstAnswerIsTaken)
{
    shell("echo asked >> $dir/log; printf ' \\t\\n%s\\n\\n \\r\\n' $gcloud");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
    EXPECT_EQ(home.read(u"log"_s), "asked\n");
}

TEST_F(GCloudPathResolverTest, TheNextWayIsTriedWhenTheShellFailsAlthoughItPrintsAPath)
{
    shell("echo $gcloud; test $# = 4");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AShellThatDiesByASignalHasFailed)
{
    shell("echo $gcloud; kill -KILL $$");

    expectNotFound();
}

TEST_F(GCloudPathResolverTest, TheNextWayIsTriedWhenTheAnswerIsAMessage)
{
    shell("if [ $1 = -l ]; then echo $gcloud; else echo gcloud not found; fi");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AnAnswerThatIsNoUtf8IsNone)
{
    shell("if [ $1 = -l ]; then echo $gcloud; else printf '\\377\\n'; fi");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AnEmptyAnswerIsNone)
{
    shell("echo");

    expectNotFound();
}

TEST_F(GCloudPathResolverTest, TheShellHasNoInputAndItsErrorsAreDropped)
{
    shell("readlink /proc/$$/fd/0 /proc/$$/fd/2 > $dir/log; echo noise >&2; cat; echo $gcloud");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
    EXPECT_EQ(home.read(u"log"_s), "/dev/null\n/dev/null\n");
}

TEST_F(GCloudPathResolverTest, TheShellLeadsASessionOfItsOwn)
{
    shell("[ $(cut -d ' ' -f 6 /proc/$$/stat) = $$ ] && echo $gcloud");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, WhatTheStartUpFilesLeaveInTheBackgroundIsNotWaitedFor)
{
    shell("sleep 1000 & echo $! > $dir/pid; echo $gcloud");
    const auto end
        = qScopeGuard([this] { ::kill(home.read(u"pid"_s).trimmed().toInt(), SIGKILL); });

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AShellThatHangsIsEndedWithItsChildrenAndHasFailed)
{
    const QByteArray fifo = QFile::encodeName(home.path(u"fifo"_s));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    const FileDescriptor held(::open(fifo.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    shell("[ $# = 4 ] && echo $gcloud && exit; exec 9>$dir/fifo; sleep 1000 & sleep 1000");
    places.shellTimeLimit = 50ms;

    // On a busy machine the way that answers may run into the short limit, too.
    QString path;
    while (path.isEmpty()) {
        try {
            path = resolve();
        } catch (const AppError &) {
            places.shellTimeLimit *= 2;
        }
    }

    EXPECT_EQ(path, home.path(u"bin/gcloud"_s));
    // The end of the file, and not that there is nothing to read now: nobody holds the FIFO.
    char byte = 0;
    EXPECT_EQ(::read(held.get(), &byte, 1), 0);
}

TEST_F(GCloudPathResolverTest, AShellThatPrintsWithoutEndHasFailed)
{
    shell("[ $# = 4 ] && echo $gcloud && exit; yes");

    EXPECT_EQ(resolve(), home.path(u"bin/gcloud"_s));
}

TEST_F(GCloudPathResolverTest, AStopEndsAHangingShellAndTheSearch)
{
    const QByteArray fifo = QFile::encodeName(home.path(u"fifo"_s));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    shell("echo asked >> $dir/log; echo ready > $dir/fifo; sleep 1000");
    std::stop_source stop;

    std::jthread search([this, token = stop.get_token()] { expectNotFound(token); });
    QFile ready(home.path(u"fifo"_s));
    EXPECT_TRUE(ready.open(QIODevice::ReadOnly)); // returns when the shell has opened it
    EXPECT_EQ(ready.readAll(), "ready\n");
    stop.request_stop();
    search.join();

    EXPECT_EQ(home.read(u"log"_s), "asked\n") << "no other way is tried";
}

TEST_F(GCloudPathResolverTest, AStopBeforeTheSearchStartsNoShell)
{
    shell("echo asked >> $dir/log; echo $gcloud");
    std::stop_source stop;
    stop.request_stop();

    expectNotFound(stop.get_token());

    EXPECT_EQ(home.read(u"log"_s), "");
}

TEST_F(GCloudPathResolverTest, AnswersSeveralThreadsAtOnce)
{
    shell("echo $gcloud");
    const GCloudPathResolver resolver(customPath, places);

    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(
            [this, &resolver] { EXPECT_EQ(resolver.resolve(), home.path(u"bin/gcloud"_s)); });
    }
}

TEST(SearchPlacesTest, TheListsAreTheUsersPlacesInTheirOrder)
{
    const SearchPlaces places = SearchPlaces::ofThisUser();

    EXPECT_EQ(places.wellKnown,
              QStringList({
                  u"~/google-cloud-sdk/bin/gcloud"_s,
                  u"~/Documents/google-cloud-sdk/bin/gcloud"_s,
                  u"~/Downloads/google-cloud-sdk/bin/gcloud"_s,
                  u"~/Desktop/google-cloud-sdk/bin/gcloud"_s,
                  u"/usr/local/google-cloud-sdk/bin/gcloud"_s,
                  u"/opt/google-cloud-sdk/bin/gcloud"_s,
                  u"/opt/homebrew/bin/gcloud"_s,
                  u"/opt/homebrew/share/google-cloud-sdk/bin/gcloud"_s,
                  u"/usr/local/bin/gcloud"_s,
                  u"/usr/local/Caskroom/google-cloud-sdk/latest/google-cloud-sdk/bin/gcloud"_s,
                  u"/snap/google-cloud-cli/current/bin/gcloud"_s,
              }));
    EXPECT_EQ(places.startUpFiles,
              QStringList({ u".zshrc"_s, u".zprofile"_s, u".bash_profile"_s, u".bashrc"_s,
                            u".profile"_s }));
    EXPECT_EQ(places.homeDirectory, QFile::decodeName(qgetenv("HOME")));
    EXPECT_EQ(places.shellTimeLimit, 10s);
}

TEST(SearchPlacesTest, TheShellIsTheEnvironmentsOrZsh)
{
    const auto restore = qScopeGuard([] { qunsetenv("SHELL"); });

    qunsetenv("SHELL");
    EXPECT_EQ(SearchPlaces::ofThisUser().shell, u"/bin/zsh"_s);
    qputenv("SHELL", "/opt/my shell");
    EXPECT_EQ(SearchPlaces::ofThisUser().shell, u"/opt/my shell"_s);
    qputenv("SHELL", "");
    EXPECT_EQ(SearchPlaces::ofThisUser().shell, u""_s) << "set, and so not replaced";
}

} // namespace torvi
