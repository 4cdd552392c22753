// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Photographer.h"

#include "VeldraUI/Style/Theme.h"

#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

namespace torvi {

using namespace Qt::StringLiterals;

namespace {

const QPoint kNowhere{ 1, 1 };

} // namespace

Photographer::Photographer(const QString &page, bool dark)
{
    QObject::connect(m_view.engine(), &QQmlEngine::warnings, &m_view, [this] { m_warned = true; });
    m_view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    m_view.setSource(QUrl::fromLocalFile(page));
    if (m_view.status() == QQuickView::Ready) {
        Theme::of(m_view).setDark(dark);
        m_view.setColor(Theme::of(m_view).colors()->windowBackground);
    }
}

QImage Photographer::picture()
{
    if (m_view.status() != QQuickView::Ready) {
        return {};
    }
    m_view.show();
    if (!QTest::qWaitForWindowActive(&m_view)) {
        return {};
    }
    QTest::mouseMove(&m_view, kNowhere);
    if (!isReady()) {
        return {};
    }
    QImage picture = m_view.grabWindow();
    picture.setDevicePixelRatio(m_view.effectiveDevicePixelRatio());
    pose(*m_view.rootObject(), picture);
    return m_warned ? QImage() : picture;
}

bool Photographer::isReady()
{
    const auto *late = m_view.rootObject()->findChild<QObject *>(u"ready"_s);
    return late == nullptr || QTest::qWaitFor([late] { return late->property("value").toBool(); });
}

void Photographer::pose(QQuickItem &item, QImage &picture)
{
    poseOne(item, picture);
    for (QQuickItem *child : item.childItems()) {
        pose(*child, picture);
    }
}

void Photographer::poseOne(QQuickItem &item, QImage &picture)
{
    const QString state = item.objectName();
    const QRectF bounds = item.mapRectToScene({ 0, 0, item.width(), item.height() });
    const QPoint centre = bounds.center().toPoint();
    if (state == u"focus") {
        item.forceActiveFocus(Qt::TabFocusReason);
    } else if (state == u"hover" || state == u"press") {
        QTest::mouseMove(&m_view, centre);
        if (state == u"press") {
            QTest::mousePress(&m_view, Qt::LeftButton, {}, centre);
        }
    } else {
        return;
    }
    QCoreApplication::processEvents();
    const QImage moment = m_view.grabWindow();
    if (state == u"press") {
        QTest::mouseRelease(&m_view, Qt::LeftButton, {}, kNowhere);
    }
    m_view.contentItem()->forceActiveFocus();
    QTest::mouseMove(&m_view, kNowhere);

    const qreal scale = picture.devicePixelRatio();
    const QRectF place = bounds.adjusted(-5, -5, 5, 5);
    QPainter(&picture).drawImage(place, moment,
                                 QRectF(place.topLeft() * scale, place.size() * scale));
}

} // namespace torvi
