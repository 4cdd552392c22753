// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Photographer.h"

#include <QDir>
#include <QGuiApplication>
#include <QSGRendererInterface>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

bool take(const QString &page, bool dark, const QDir &folder)
{
    const QImage picture = torvi::Photographer(page, dark).picture();
    const QString name
        = u"%1-%2@%3x.png"_s.arg(QFileInfo(page).baseName(), dark ? u"dark"_s : u"light"_s,
                                 QString::number(picture.devicePixelRatio()));
    return !picture.isNull() && picture.save(folder.filePath(name));
}

} // namespace

/// veldraui_gallery FOLDER [PAGE...]: pictures of the pages, all unless named, into FOLDER, at the
/// scale that QT_SCALE_FACTOR says.
int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QStringList names = QGuiApplication::arguments().mid(1);
    if (names.isEmpty()) {
        std::fputs("usage: veldraui_gallery FOLDER [PAGE...]\n", stderr);
        return EXIT_FAILURE;
    }
    const QDir folder(names.takeFirst());
    folder.mkpath(u"."_s);
    const QDir pages(QStringLiteral(TORVI_GALLERY));
    if (names.isEmpty()) {
        for (const QString &file : pages.entryList({ u"*.qml"_s }, QDir::Files, QDir::Name)) {
            names.append(QFileInfo(file).baseName());
        }
    }
    bool good = true;
    for (const QString &name : names) {
        for (const bool dark : { true, false }) {
            good = take(pages.filePath(name + u".qml"_s), dark, folder) && good;
        }
    }
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
