// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/MenubarIconManager.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// `text` when it has at most `limit` characters as a reader counts them, else one less than that
/// many and an ellipsis.
QString shortened(const QString &text, qsizetype limit)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype cut = 0;
    for (qsizetype count = 1; finder.toNextBoundary() != -1; ++count) {
        if (count == limit - 1) {
            cut = finder.position();
        } else if (count > limit) {
            return text.left(cut) + u'…';
        }
    }
    return text;
}

} // namespace

MenubarIconManager::MenubarIconManager(StatusItem &statusItem, const AuthStateManager &stateManager,
                                       const SettingsStoring &settingsStore)
    : m_statusItem(statusItem)
    , m_stateManager(stateManager)
    , m_settingsStore(settingsStore)
{
}

void MenubarIconManager::update()
{
    if (!m_statusItem.hasButton()) {
        return;
    }
    const bool isImpersonating
        = m_stateManager.currentContext().impersonatedServiceAccount.has_value();
    m_statusItem.setImage(isImpersonating ? u"cloud.bolt.fill"_s : u"cloud.fill"_s, u"Torvi"_s);
    m_statusItem.setTitle(title());
}

QString MenubarIconManager::title() const
{
    const AuthContext &context = m_stateManager.currentContext();
    const QString project = context.activeProject ? context.activeProject->id : QString();
    const QString account = context.activeAccount ? context.activeAccount->email : QString();
    const MenubarDisplayFormat format = m_settingsStore.menubarDisplayFormat();
    if (project.isEmpty() || format == MenubarDisplayFormat::iconOnly) {
        return {};
    }
    if (format == MenubarDisplayFormat::iconAndProject) {
        return u' ' + shortened(project, 20);
    }
    return u' ' + shortened(project, 15) + u" | "_s + shortened(account, 15);
}

} // namespace torvi
