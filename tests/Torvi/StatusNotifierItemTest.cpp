// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusNotifierItem.h"

#include "Torvi/Linux/ActivationToken.h"
#include "tests/support/BusSignals.h"
#include "tests/support/FakeStatusNotifierWatcher.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/WaitUntil.h"

#include <QCursor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QScopeGuard>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kInterface = u"org.kde.StatusNotifierItem"_s;
const QString kPath = u"/StatusNotifierItem"_s;

} // namespace

/// The item on one connection; a panel, as the test plays it, on another.
class StatusNotifierItemTest : public testing::Test
{
protected:
    PrivateBus bus;
    QDBusConnection panel = bus.connect();
    std::optional<FakeStatusNotifierWatcher> watcher;
    std::unique_ptr<StatusNotifierItem> item;

    void makeItem()
    {
        item = std::make_unique<StatusNotifierItem>(bus.connect());
    }

    QDBusMessage call(const QString &interface, const QString &method,
                      const QVariantList &arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(StatusNotifierItem::serviceName(),
                                                              kPath, interface, method);
        message.setArguments(arguments);
        return panel.call(message, QDBus::BlockWithGui); // both ends are in this thread
    }

    QVariant property(const QString &name)
    {
        const QDBusReply<QDBusVariant> reply
            = call(u"org.freedesktop.DBus.Properties"_s, u"Get"_s, { kInterface, name });
        EXPECT_TRUE(reply.isValid()) << qPrintable(reply.error().message());
        return reply.value().variant();
    }

    [[nodiscard]] std::unique_ptr<BusSignals> signalsNamed(const QString &name)
    {
        return std::make_unique<BusSignals>(panel, StatusNotifierItem::serviceName(), kPath,
                                            kInterface, name);
    }

    template <typename Value>
    Value structure(const QString &name)
    {
        return qdbus_cast<Value>(property(name));
    }

    [[nodiscard]] bool isOnBus()
    {
        return panel.interface()->isServiceRegistered(StatusNotifierItem::serviceName());
    }

    [[nodiscard]] qsizetype registrations() const
    {
        return watcher->registered.size();
    }

    bool isRegistered(qsizetype times)
    {
        return waitUntil([this, times] { return registrations() >= times; })
            && waitUntil([this] { return item->registration()->isRegistered(); });
    }
};

TEST_F(StatusNotifierItemTest, RegistersAtOnceWithAWatcherThatIsThere)
{
    watcher.emplace(bus.connect());

    makeItem();

    EXPECT_TRUE(isRegistered(1));
    EXPECT_EQ(watcher->registered, QStringList{ StatusNotifierItem::serviceName() });
    EXPECT_TRUE(isOnBus());
}

TEST_F(StatusNotifierItemTest, RegistersWithAWatcherThatComesLate)
{
    makeItem();
    property(u"Id"_s); // an answer of ours: the refusal of our registration came before it

    watcher.emplace(bus.connect());

    EXPECT_TRUE(isRegistered(1));
    EXPECT_EQ(registrations(), 1);
}

TEST_F(StatusNotifierItemTest, RegistersAgainWithAWatcherThatComesBack)
{
    watcher.emplace(bus.connect());
    makeItem();
    ASSERT_TRUE(isRegistered(1));

    watcher.reset();
    ASSERT_TRUE(waitUntil([this] { return !item->registration()->isRegistered(); }));
    watcher.emplace(bus.connect());

    EXPECT_TRUE(isRegistered(1));
}

TEST_F(StatusNotifierItemTest, RegistersAgainEachTimeAWatcherComesBack)
{
    makeItem();
    for (int times = 0; times < 2; ++times) {
        watcher.emplace(bus.connect());
        EXPECT_TRUE(isRegistered(1));
        EXPECT_EQ(registrations(), 1);
        watcher.reset();
        EXPECT_TRUE(waitUntil([this] { return !item->registration()->isRegistered(); }));
    }
}

TEST_F(StatusNotifierItemTest, RegistersWithAWatcherThatTakesOverFromAnother)
{
    const QDBusConnection first = bus.connect();
    watcher.emplace(first);
    makeItem();
    ASSERT_TRUE(isRegistered(1));

    // The second owns the name in the very moment in which the first lets it go.
    QDBusConnection second = bus.connect();
    FakeStatusNotifierWatcher other(second);
    second.interface()->registerService(u"org.kde.StatusNotifierWatcher"_s,
                                        QDBusConnectionInterface::QueueService);
    watcher.reset();

    EXPECT_TRUE(waitUntil([&other] { return !other.registered.isEmpty(); }));
}

TEST_F(StatusNotifierItemTest, WorksWithoutAnyWatcher)
{
    makeItem();
    item->setTitle(u" labs"_s);

    EXPECT_TRUE(item->hasButton());
    EXPECT_TRUE(isOnBus());
    EXPECT_EQ(property(u"XAyatanaLabel"_s), u" labs"_s);
    EXPECT_FALSE(item->registration()->isRegistered());
}

TEST_F(StatusNotifierItemTest, HasNoButtonWithoutABus)
{
    StatusNotifierItem unconnected(QDBusConnection(u"no such connection"_s));

    EXPECT_FALSE(unconnected.hasButton());
    EXPECT_EQ(unconnected.registration(), nullptr);
    unconnected.setImage(u"cloud.fill"_s, u"Torvi"_s);
    unconnected.setTitle(u" labs"_s);
}

TEST_F(StatusNotifierItemTest, LeavesTheBusAtItsEnd)
{
    watcher.emplace(bus.connect());
    makeItem();
    ASSERT_TRUE(isRegistered(1));
    QDBusServiceWatcher departure(StatusNotifierItem::serviceName(), panel,
                                  QDBusServiceWatcher::WatchForUnregistration);
    bool hasLeft = false;
    QObject::connect(&departure, &QDBusServiceWatcher::serviceUnregistered, &departure,
                     [&hasLeft] { hasLeft = true; });

    item.reset();

    EXPECT_TRUE(waitUntil([&hasLeft] { return hasLeft; }));
    EXPECT_FALSE(isOnBus());
}

TEST_F(StatusNotifierItemTest, TellsPanelsWhatItIs)
{
    makeItem();

    EXPECT_EQ(property(u"Category"_s), u"ApplicationStatus"_s);
    EXPECT_EQ(property(u"Id"_s), u"com.veldra.Torvi"_s);
    EXPECT_EQ(property(u"Title"_s), u"Torvi"_s);
    EXPECT_EQ(property(u"Status"_s), u"Active"_s);
    EXPECT_EQ(property(u"WindowId"_s), 0);
    EXPECT_EQ(property(u"OverlayIconName"_s), QString());
    EXPECT_EQ(property(u"AttentionIconName"_s), QString());
    EXPECT_EQ(property(u"AttentionMovieName"_s), QString());
    EXPECT_TRUE(structure<IconPixmaps>(u"OverlayIconPixmap"_s).isEmpty());
    EXPECT_TRUE(structure<IconPixmaps>(u"AttentionIconPixmap"_s).isEmpty());
    EXPECT_EQ(property(u"XAyatanaOrderingIndex"_s), 0U);
}

TEST_F(StatusNotifierItemTest, ExportsNoMenuSoThatAClickIsPassedOn)
{
    makeItem();

    EXPECT_EQ(property(u"ItemIsMenu"_s), false);
    EXPECT_EQ(property(u"Menu"_s).value<QDBusObjectPath>().path(), u"/NO_DBUSMENU"_s);
}

TEST_F(StatusNotifierItemTest, AllPropertiesCanBeReadAtOnce)
{
    makeItem();
    item->setImage(u"cloud.fill"_s, u"Torvi"_s);

    const QDBusMessage reply
        = call(u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, { kInterface });

    const auto all = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    EXPECT_EQ(all.size(), 20);
    for (const QString &name : { u"IconPixmap"_s, u"ToolTip"_s, u"XAyatanaLabelGuide"_s }) {
        EXPECT_TRUE(all.contains(name)) << qPrintable(name);
    }
}

TEST_F(StatusNotifierItemTest, HasTheSignaturesOfTheProtocol)
{
    makeItem();

    const QDBusReply<QString> description
        = call(u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);

    const std::string xml = description.value().toStdString();
    for (const char *part :
         { R"x(<property name="IconPixmap" type="a(iiay)")x",
           R"x(<property name="ToolTip" type="(sa(iiay)ss)")x",
           R"x(<property name="Menu" type="o")x",
           R"x(<property name="XAyatanaOrderingIndex" type="u")x", R"x(<method name="Activate">)x",
           R"x(<method name="XAyatanaSecondaryActivate">)x",
           R"x(<method name="ProvideXdgActivationToken">)x", R"x(<signal name="NewIcon">)x",
           R"x(<signal name="NewToolTip">)x", R"x(<signal name="XAyatanaNewLabel">)x" }) {
        EXPECT_THAT(xml, testing::HasSubstr(part));
    }
}

TEST_F(StatusNotifierItemTest, ShowsAnIconByNameAndAsPixmaps)
{
    makeItem();
    const auto changes = signalsNamed(u"NewIcon"_s);

    item->setImage(u"cloud.bolt.fill"_s, u"Torvi"_s);

    EXPECT_TRUE(waitUntil([&changes] { return changes->received.size() == 1; }));
    EXPECT_EQ(property(u"IconName"_s), u"com.veldra.Torvi-cloud-bolt-fill-symbolic"_s);
    EXPECT_EQ(property(u"IconAccessibleDesc"_s), u"Torvi"_s);
    EXPECT_EQ(structure<IconPixmaps>(u"IconPixmap"_s).size(), 5);
    EXPECT_TRUE(property(u"IconThemePath"_s).toString().endsWith(u"/share/icons"_s));
}

TEST_F(StatusNotifierItemTest, ShowsTheTitleAsALabel)
{
    makeItem();
    const auto changes = signalsNamed(u"XAyatanaNewLabel"_s);

    item->setTitle(u" labs | ada@examp…"_s);

    EXPECT_TRUE(waitUntil([&changes] { return changes->received.size() == 1; }));
    EXPECT_EQ(changes->received.first(),
              (QVariantList{ u" labs | ada@examp…"_s, u" labs | ada@examp…"_s }));
    EXPECT_EQ(property(u"XAyatanaLabel"_s), u" labs | ada@examp…"_s);
    EXPECT_EQ(property(u"XAyatanaLabelGuide"_s), u" labs | ada@examp…"_s);
}

TEST_F(StatusNotifierItemTest, ShowsAToolTipWithItsMarkupEscaped)
{
    makeItem();
    const auto changes = signalsNamed(u"NewToolTip"_s);

    item->setToolTip(u"Torvi – labs"_s, u"Project: labs\nConfiguration: a<b>&c"_s);

    EXPECT_TRUE(waitUntil([&changes] { return changes->received.size() == 1; }));
    const auto toolTip = structure<ItemToolTip>(u"ToolTip"_s);
    EXPECT_EQ(toolTip.title, u"Torvi – labs"_s);
    EXPECT_EQ(toolTip.text, u"Project: labs\nConfiguration: a&lt;b&gt;&amp;c"_s);
    EXPECT_EQ(toolTip.iconName, QString());
    EXPECT_TRUE(toolTip.iconPixmaps.isEmpty());
}

TEST_F(StatusNotifierItemTest, BreaksTheLinesOfTheToolTipAsPlasmaDoes)
{
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    makeItem();

    item->setToolTip(u"Torvi"_s, u"Project: labs\nADC: None"_s);

    EXPECT_EQ(structure<ItemToolTip>(u"ToolTip"_s).text, u"Project: labs<br/>ADC: None"_s);
    qunsetenv("XDG_CURRENT_DESKTOP");
}

TEST_F(StatusNotifierItemTest, DoesNotWakePanelsWhenNothingChanges)
{
    makeItem();
    item->setImage(u"cloud.fill"_s, u"Torvi"_s);
    item->setTitle(u" labs"_s);
    item->setToolTip(u"Torvi"_s, u"text"_s);
    property(u"Id"_s); // the answer comes after the signals of these changes
    const auto icons = signalsNamed(u"NewIcon"_s);
    const auto labels = signalsNamed(u"XAyatanaNewLabel"_s);
    const auto toolTips = signalsNamed(u"NewToolTip"_s);

    item->setImage(u"cloud.fill"_s, u"Torvi"_s);
    item->setTitle(u" labs"_s);
    item->setToolTip(u"Torvi"_s, u"text"_s);
    item->setTitle(u" end"_s); // comes after any of the others

    EXPECT_TRUE(waitUntil([&labels] { return !labels->received.isEmpty(); }));
    EXPECT_EQ(labels->received.size(), 1);
    EXPECT_TRUE(icons->received.isEmpty());
    EXPECT_TRUE(toolTips->received.isEmpty());
}

TEST_F(StatusNotifierItemTest, AClickRunsTheActionAtThePointer)
{
    makeItem();
    QList<QPoint> clicks;
    item->setAction([&clicks](const QPoint &position) { clicks.append(position); });
    QCursor::setPos(600, 500);

    call(kInterface, u"Activate"_s, { 590, 510 });
    call(kInterface, u"Activate"_s, { 0, 28 });

    EXPECT_EQ(clicks, (QList<QPoint>{ { 590, 510 }, { 600, 500 } }));
}

TEST_F(StatusNotifierItemTest, BelievesThePanelInAWaylandSession)
{
    const auto restore = qScopeGuard([] { qunsetenv("WAYLAND_DISPLAY"); });
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    makeItem();
    QList<QPoint> clicks;
    item->setAction([&clicks](const QPoint &position) { clicks.append(position); });
    QCursor::setPos(600, 500);

    call(kInterface, u"Activate"_s, { 1100, 16 });

    EXPECT_EQ(clicks, QList{ QPoint(1100, 16) });
}

TEST_F(StatusNotifierItemTest, AnswersAClickWithSuccessExceptToGnome)
{
    const auto restore = qScopeGuard([] { qunsetenv("XDG_CURRENT_DESKTOP"); });
    makeItem();
    int clicks = 0;
    item->setAction([&clicks](const QPoint &) { ++clicks; });

    EXPECT_EQ(call(kInterface, u"Activate"_s, { 1, 2 }).type(), QDBusMessage::ReplyMessage);
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    const QDBusMessage answer = call(kInterface, u"Activate"_s, { 1, 2 });

    EXPECT_EQ(answer.errorName(),
              u"org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19"_s);
    EXPECT_EQ(clicks, 2);
}

TEST_F(StatusNotifierItemTest, OtherKindsOfClicksDoNothingAndAreAnswered)
{
    makeItem();
    int clicks = 0;
    item->setAction([&clicks](const QPoint &) { ++clicks; });

    const QList<std::pair<QString, QVariantList>> calls{
        { u"SecondaryActivate"_s, { 1, 2 } },
        { u"XAyatanaSecondaryActivate"_s, { 1U } },
        { u"ContextMenu"_s, { 1, 2 } },
        { u"Scroll"_s, { 120, u"vertical"_s } },
    };
    for (const auto &[method, arguments] : calls) {
        EXPECT_EQ(call(kInterface, method, arguments).type(), QDBusMessage::ReplyMessage)
            << qPrintable(method);
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(StatusNotifierItemTest, KeepsTheActivationTokenForTheNextWindow)
{
    makeItem();

    call(kInterface, u"ProvideXdgActivationToken"_s, { u"a token"_s });

    QString seen;
    ActivationToken::use([&seen] { seen = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); });
    EXPECT_EQ(seen, u"a token"_s);
}

} // namespace torvi
