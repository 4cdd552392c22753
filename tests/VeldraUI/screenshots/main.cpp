// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "PictureComparison.h"
#include "Scenes.h"
#include "Stage.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QStyleHints>

#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Whether the picture is like the one of that name in the folder; says so when not. A scene
/// without a reference is like it.
bool isLikeReference(const QImage &picture, const QDir &references, const QString &name)
{
    const QImage reference(references.filePath(name));
    if (reference.isNull()) {
        return true;
    }
    const double share = torvi::shareThatDiffers(picture, reference);
    if (share > torvi::kTolerance) {
        std::printf("%s differs from its reference in %.2f %% of its pixels\n", qPrintable(name),
                    100 * share);
    }
    return share <= torvi::kTolerance;
}

} // namespace

/// veldraui_screenshots [--compare REFERENCES] FOLDER [SCENE...]: pictures of the popover's states,
/// all unless named, into FOLDER, at the scale that QT_SCALE_FACTOR says. Fails when one differs
/// from that of the same name in REFERENCES.
int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(u"DejaVu Sans"_s)); // whatever the machine's own is
    QGuiApplication::styleHints()->setCursorFlashTime(0); // a caret at rest
    QStringList names = QGuiApplication::arguments().mid(1);
    std::optional<QDir> references;
    if (names.size() > 2 && names.first() == u"--compare") {
        references = QDir(names.at(1));
        names = names.mid(2);
    }
    if (names.isEmpty()) {
        std::fputs("usage: veldraui_screenshots [--compare REFERENCES] FOLDER [SCENE...]\n",
                   stderr);
        return EXIT_FAILURE;
    }
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(TORVI_ICON)));
    QGuiApplication::setApplicationVersion(u"1.0"_s);
    const QDir folder(names.takeFirst());
    folder.mkpath(u"."_s);
    bool areAlike = true;
    std::vector<torvi::Scene> scenes = torvi::scenes();
    const std::vector<torvi::Scene> managerScenes = torvi::managerScenes();
    scenes.insert(scenes.end(), managerScenes.begin(), managerScenes.end());
    for (const torvi::Scene &scene : scenes) {
        if (!names.isEmpty() && !names.contains(scene.name)) {
            continue;
        }
        torvi::Stage stage;
        scene.act(stage);
        const QImage picture = stage.picture().convertToFormat(QImage::Format_RGB888);
        const QString name = u"%1@%2x.png"_s.arg(scene.name).arg(application.devicePixelRatio());
        if (!picture.save(folder.filePath(name), "PNG", 0)) {
            return EXIT_FAILURE;
        }
        std::puts(qPrintable(name));
        if (references) {
            areAlike = isLikeReference(picture, *references, name) && areAlike;
        }
    }
    return areAlike ? EXIT_SUCCESS : EXIT_FAILURE;
}
