// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Scenes.h"
#include "Stage.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

/// veldraui_screenshots FOLDER [SCENE...]: pictures of the views' states, all unless named, into
/// FOLDER, at the scale that QT_SCALE_FACTOR says.
int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QStringList names = QGuiApplication::arguments().mid(1);
    if (names.isEmpty()) {
        std::fputs("usage: veldraui_screenshots FOLDER [SCENE...]\n", stderr);
        return EXIT_FAILURE;
    }
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(TORVI_ICON)));
    QGuiApplication::setApplicationVersion(u"1.0"_s);
    const QDir folder(names.takeFirst());
    folder.mkpath(u"."_s);
    std::vector<torvi::Scene> scenes = torvi::scenes();
    const std::vector<torvi::Scene> managerScenes = torvi::managerScenes();
    scenes.insert(scenes.end(), managerScenes.begin(), managerScenes.end());
    for (const torvi::Scene &scene : scenes) {
        if (!names.isEmpty() && !names.contains(scene.name)) {
            continue;
        }
        torvi::Stage stage;
        scene.act(stage);
        const QImage picture = stage.picture();
        const QString name = u"%1@%2x.png"_s.arg(scene.name).arg(application.devicePixelRatio());
        if (!picture.save(folder.filePath(name))) {
            return EXIT_FAILURE;
        }
        std::puts(qPrintable(name));
    }
    return EXIT_SUCCESS;
}
