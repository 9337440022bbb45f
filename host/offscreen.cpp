// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/offscreen.h"

#include "printing/text.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QTabWidget>

#include <string_view>

namespace tessarin::host {

namespace {

/// A tab's title as a part of a file name: its letters and digits, with one dash for whatever stands between them.
QString fileNamePart(const QString &title)
{
    QString part;
    for (const QChar character : title) {
        if (character.isLetterOrNumber()) {
            part += character;
        } else if (character != u'&' && !part.isEmpty() && !part.endsWith(u'-')) {
            part += u'-';
        }
    }
    return part.endsWith(u'-') ? part.chopped(1) : part;
}

/// The tab widget of a view, or the view itself when it is one; null when there is none.
QTabWidget *tabsOf(QWidget *view)
{
    auto *tabs = qobject_cast<QTabWidget *>(view);
    return tabs || !view ? tabs : view->findChild<QTabWidget *>();
}

/// Saves what the dialog shows. Answers what went wrong; an empty text when nothing did.
QString savePicture(PrintDialog &dialog, const QString &path)
{
    QApplication::processEvents(); // what a page does when it is first shown
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !dialog.grab().save(&file, "PNG") || !file.commit()) {
        const QString why = file.errorString();
        return TessarinPrint::tr("picture %1: %2").arg(path, why);
    }
    return {};
}

} // namespace

bool displayIsMissing(int argc, const char *const *argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "-platform" || argument == "--platform") {
            return false;
        }
    }
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void chooseOffscreenPlatform()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // This platform warns about each window that it cannot have size hints, which tells the user nothing.
    static QtMessageHandler previous = nullptr;
    previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (!text.contains(QLatin1String("propagateSizeHints"))) {
            previous(type, context, text);
        }
    });
}

QString defaultPicturesDirectory()
{
    return QStringLiteral("tessarin-pages");
}

Outcome<Pictures> savePictures(PrintDialog &dialog, const QString &directory)
{
    using Result = Outcome<Pictures>;
    const QDir folder(directory);
    if (QFileInfo info(directory); (info.exists() && !info.isDir()) || !QDir().mkpath(directory)) {
        return Result::failed(TessarinPrint::tr("folder for pictures %1: it cannot be made").arg(directory));
    }
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.resize(dialog.sizeHint());
    dialog.show();

    Pictures pictures;
    QTabWidget *tabs = tabsOf(dialog.panelView());
    const int pages = tabs ? tabs->count() : 0;
    for (int page = 0; page < pages; ++page) {
        const QString title = tabs->tabText(page);
        tabs->setCurrentIndex(page);
        if (tabs->currentIndex() != page) {
            pictures.notes << TessarinPrint::tr(
                                  "page %1 (%2) cannot be selected for this printer: no picture of it")
                                  .arg(QString::number(page + 1), title);
            continue;
        }
        const QString part = fileNamePart(title);
        const QString name = QStringLiteral("tessarin-page-%1%2.png")
                                 .arg(QString::number(page + 1), part.isEmpty() ? QString() : u'-' + part);
        pictures.files << folder.filePath(name);
        if (const QString why = savePicture(dialog, pictures.files.back()); !why.isEmpty()) {
            return Result::failed(why);
        }
    }
    if (pages == 0) {
        pictures.files << folder.filePath(QStringLiteral("tessarin-dialog.png"));
        if (const QString why = savePicture(dialog, pictures.files.back()); !why.isEmpty()) {
            return Result::failed(why);
        }
    }
    dialog.hide();
    return pictures;
}

} // namespace tessarin::host
