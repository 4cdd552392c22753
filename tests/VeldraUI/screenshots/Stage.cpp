// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Stage.h"

#include "VeldraUI/Style/Theme.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QQuickItem *below(QQuickItem *item, const QString &name)
{
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (child->objectName() == name) {
            return child;
        }
    }
    for (QQuickItem *child : children) {
        if (QQuickItem *found = below(child, name)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

Stage::Stage()
{
    m_view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
}

void Stage::open()
{
    m_view.resize(400, 750);
    load(u"PopoverView"_s);
}

void Stage::openManager(const QString &page, const QSize &size, Appearance appearance)
{
    m_view.resize(size);
    load(u"ManagerWindowView"_s);
    Theme::of(m_view).setDark(appearance == Appearance::dark);
    click(page + u"Tab"_s);
    QTest::mouseMove(&m_view, { m_view.width() - 1, 1 });
    world.settle();
}

void Stage::load(const QString &view)
{
    m_view.setInitialProperties(
        { { u"stateManager"_s, QVariant::fromValue(world.stateManager()) } });
    m_view.setSource(QUrl(u"qrc:/qt/qml/VeldraUI/%1.qml"_s.arg(view)));
    m_view.show();
    if (!m_view.rootObject() || !QTest::qWaitForWindowActive(&m_view)) {
        qFatal("%s does not open", qPrintable(view));
    }
    QTest::mouseMove(&m_view, { m_view.width() - 1, 1 });
    world.settle();
}

void Stage::hover(const QString &path)
{
    QTest::mouseMove(&m_view, centreOf(path));
}

void Stage::press(const QString &path)
{
    hover(path);
    QTest::mousePress(&m_view, Qt::LeftButton, {}, centreOf(path));
}

void Stage::click(const QString &path, Qt::MouseButton button)
{
    hover(path);
    QTest::mouseClick(&m_view, button, {}, centreOf(path));
    world.settle();
}

void Stage::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&m_view, static_cast<Qt::Key>(key), modifiers);
    world.settle();
}

void Stage::type(const QString &text)
{
    for (const QChar character : text) {
        QTest::keyClick(&m_view, character.toLatin1());
    }
}

void Stage::scrollTo(double y)
{
    QQuickItem *area = item(u"scrollArea"_s);
    const double end = area->property("contentHeight").toDouble() - area->height();
    area->setProperty("contentY", std::clamp(y, 0.0, std::max(0.0, end)));
}

void Stage::scroll(const QString &path, int points)
{
    QWheelEvent event(centreOf(path), m_view.mapToGlobal(centreOf(path)), { 0, -points },
                      { 0, -points }, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(&m_view, &event);
}

/// Waits until what moves has come to rest: tool tips come after a moment, symbols turn. What turns
/// for good is not waited for.
QImage Stage::picture()
{
    QImage picture = m_view.grabWindow();
    for (int stillFor = 0, tries = 0; stillFor < 3 && tries < 12; ++tries) {
        QTest::qWait(250);
        const QImage next = m_view.grabWindow();
        stillFor = next == picture ? stillFor + 1 : 0;
        picture = next;
    }
    return picture;
}

QQuickItem *Stage::item(const QString &path) const
{
    QQuickItem *item = m_view.contentItem();
    for (const QString &name : path.split(u'/')) {
        item = below(item, name);
        if (!item) {
            qFatal("there is no %s", qPrintable(path));
        }
    }
    return item;
}

QPoint Stage::centreOf(const QString &path) const
{
    const QQuickItem *target = item(path);
    return target->mapRectToScene(target->boundingRect()).center().toPoint();
}

} // namespace torvi
