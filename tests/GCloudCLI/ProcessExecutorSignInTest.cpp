// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/GCloudCLI/ProcessExecutorFixture.h"

#include <thread>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr auto kAddress = "https://accounts.google.com/o/oauth2/auth?response_type=code"
                          "&redirect_uri=http%3A%2F%2Flocalhost%3A8085%2F&state=aB3";

/// Remembers the addresses; each one is also acknowledged by a line in a FIFO, when there is one,
/// so that a script can go on as soon as its address has arrived.
class RecordingHandler final : public BrowserAuthHandler
{
public:
    QStringList addresses;
    std::thread::id thread;
    QString fifo;

    void openAuthURL(const QString &url) override
    {
        addresses.append(url);
        thread = std::this_thread::get_id();
        QFile acknowledgement(fifo);
        if (!fifo.isEmpty() && acknowledgement.open(QIODevice::WriteOnly)) {
            acknowledgement.write("seen\n");
        }
    }
};

} // namespace

class ProcessExecutorSignInTest : public ProcessExecutorFixture
{
protected:
    std::shared_ptr<RecordingHandler> recorder = std::make_shared<RecordingHandler>();

    void SetUp() override
    {
        handler = recorder;
    }

    /// A script that prints `chunks` on standard error, each only when the one before it has been
    /// taken out of the pipe.
    void scriptPrinting(const QByteArrayList &chunks) const
    {
        QByteArray body = "import fcntl, os, sys, termios, time\n"
                          "def emptied():\n"
                          "    return fcntl.ioctl(2, termios.FIONREAD, bytes(4)) == bytes(4)\n"
                          "for name in sys.argv[1:]:\n"
                          "    os.write(2, open(name, 'rb').read())\n"
                          "    while not emptied():\n"
                          "        time.sleep(0.001)\n";
        folder.write(u"chunks.py"_s, body);
        QByteArray names;
        for (const QByteArray &chunk : chunks) {
            names += " '" + folder.write(u"chunk%1"_s.arg(names.size()), chunk).toUtf8() + "'";
        }
        script("exec python3 $dir/chunks.py" + names);
    }
};

TEST_F(ProcessExecutorSignInTest, TheHandlerGetsTheWholeAddressOnce)
{
    const QByteArray text
        = QByteArray("Your browser has been opened to visit:\n\n    ") + kAddress + "\n";
    for (const GCloudCommand &command :
         { GCloudCommand::applicationDefaultLogin(),
           GCloudCommand::adcLoginWithImpersonation(u"a@p.iam.gserviceaccount.com"_s) }) {
        scriptPrinting({ text });
        recorder->addresses.clear();

        EXPECT_EQ(run(command), (GCloudResult{ 0, u""_s, QString::fromUtf8(text) }));

        EXPECT_EQ(recorder->addresses, QStringList(QString::fromLatin1(kAddress)));
    }
}

TEST_F(ProcessExecutorSignInTest, TheHandlerIsCalledOnABackgroundThreadWhileGcloudWaits)
{
    recorder->fifo = fifo;
    script(QByteArray("echo '") + kAddress + "' >&2; read line < $fifo; echo $line");

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stdout, u"seen\n"_s);

    EXPECT_NE(recorder->thread, std::this_thread::get_id());
}

TEST_F(ProcessExecutorSignInTest, AnAddressOnStandardOutputIsNone)
{
    script(QByteArray("echo '") + kAddress + "'");

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).exitCode, 0);

    EXPECT_EQ(recorder->addresses, QStringList());
}

TEST_F(ProcessExecutorSignInTest, AnAddressOfACommandWithoutASignInIsNone)
{
    scriptPrinting({ kAddress });

    EXPECT_EQ(run(GCloudCommand::setProject(u"p"_s)).stderr, QString::fromLatin1(kAddress));

    EXPECT_EQ(recorder->addresses, QStringList());
}

TEST_F(ProcessExecutorSignInTest, WithoutAHandlerALoginYieldsItsResult)
{
    handler = nullptr;
    scriptPrinting({ kAddress });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()),
              (GCloudResult{ 0, u""_s, QString::fromLatin1(kAddress) }));
}

TEST_F(ProcessExecutorSignInTest, EachChunkWithAnAddressCallsTheHandler)
{
    scriptPrinting({ QByteArray(kAddress) + "&1\n", "Waiting\n", QByteArray(kAddress) + "&2\n" });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).exitCode, 0);

    EXPECT_EQ(recorder->addresses,
              QStringList({ QString::fromLatin1(kAddress) + u"&1"_s,
                            QString::fromLatin1(kAddress) + u"&2"_s }));
}

TEST_F(ProcessExecutorSignInTest, AnAddressThatIsSplitBetweenTwoChunksIsNotFound)
{
    const QByteArray address(kAddress);
    scriptPrinting({ address.first(20), address.sliced(20) });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stderr, QString::fromLatin1(kAddress));

    EXPECT_EQ(recorder->addresses, QStringList());
}

TEST_F(ProcessExecutorSignInTest, AChunkThatIsNotUtf8IsSkipped)
{
    scriptPrinting({ QByteArray(kAddress) + "&1 \xff\n", QByteArray(kAddress) + "&2\n" });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stderr, u""_s);

    EXPECT_EQ(recorder->addresses, QStringList(QString::fromLatin1(kAddress) + u"&2"_s));
}

} // namespace torvi
