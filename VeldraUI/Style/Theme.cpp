// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/Theme.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

#include <utility>

namespace torvi {

namespace {

// A setting may arrive after the things inside have asked for it, and it is made a few times in a
// program's life: asking everyone again is simpler than a tree of who listens to whom.
QSet<Theme *> &allThemes()
{
    static QSet<Theme *> themes;
    return themes;
}

QObject *surroundingsOf(const QObject *object)
{
    if (const auto *item = qobject_cast<const QQuickItem *>(object)) {
        return item->parentItem() != nullptr ? static_cast<QObject *>(item->parentItem())
                                             : item->window();
    }
    return object->parent();
}

} // namespace

Theme::Theme(QObject *attachee)
    : QObject(attachee)
{
    allThemes().insert(this);
    if (auto *item = qobject_cast<QQuickItem *>(attachee)) {
        connect(item, &QQuickItem::windowChanged, this, &Theme::resolve);
        connect(item, &QQuickItem::parentChanged, this, &Theme::resolve);
    }
    resolve();
}

Theme::~Theme()
{
    allThemes().remove(this);
}

Theme &Theme::of(QQuickWindow &window)
{
    auto *theme = qobject_cast<Theme *>(qmlAttachedPropertiesObject<Theme>(&window, true));
    Q_ASSERT(theme != nullptr);
    return *theme;
}

Theme *Theme::qmlAttachedProperties(QObject *attachee)
{
    return new Theme(attachee);
}

bool Theme::isDark() const
{
    return m_isDark;
}

ColorRoles *Theme::colors() const
{
    return m_isDark ? &ColorRoles::dark() : &ColorRoles::light();
}

void Theme::setDark(bool dark)
{
    if (m_isSetHere && m_isDark == dark) {
        return;
    }
    m_isSetHere = true;
    if (std::exchange(m_isDark, dark) != dark) {
        Q_EMIT changed();
    }
    resolveAll();
}

void Theme::resetDark()
{
    m_isSetHere = false;
    resolveAll();
}

void Theme::resolve()
{
    if (m_isSetHere) {
        return;
    }
    bool dark = true;
    for (const QObject *around = surroundingsOf(parent()); around != nullptr;
         around = surroundingsOf(around)) {
        const auto *theme
            = qobject_cast<Theme *>(qmlAttachedPropertiesObject<Theme>(around, false));
        if (theme != nullptr && theme->m_isSetHere) {
            dark = theme->m_isDark;
            break;
        }
    }
    if (std::exchange(m_isDark, dark) != dark) {
        Q_EMIT changed();
    }
}

void Theme::resolveAll()
{
    // By value: a binding that runs meanwhile may make or end items.
    const QSet<Theme *> themes = allThemes();
    for (Theme *theme : themes) {
        if (allThemes().contains(theme)) {
            theme->resolve();
        }
    }
}

} // namespace torvi
