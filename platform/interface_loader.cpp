// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/interface_loader.h"

#include "platform/caption_label.h"
#include "platform/interface_scale.h"
#include "platform/popup_button.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUiLoader>

namespace tessarin {

namespace {

class ViewLoader : public QUiLoader {
public:
    explicit ViewLoader(const QHash<QString, ViewMaker> &makers) : makers_(makers)
    {
        clearPluginPaths(); // designer plug-ins are no business of a print dialog
        setTranslationEnabled(false);
        setLanguageChangeEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *view = nullptr;
        if (className == QLatin1String("QLabel")) {
            view = new CaptionLabel(parent);
        } else if (className == QLatin1String("PopUpButton")) {
            view = new PopUpButton(parent);
        } else if (className == QLatin1String("TabView")) {
            view = new TabView(parent);
        } else if (const auto maker = makers_.find(className); maker != makers_.end()) {
            view = (*maker)(parent);
        } else {
            return QUiLoader::createWidget(className, parent, name);
        }
        view->setObjectName(name);
        return view;
    }

private:
    const QHash<QString, ViewMaker> &makers_;
};

} // namespace

std::unique_ptr<QWidget> loadInterfaceFile(const QString &path, const QHash<QString, ViewMaker> &makers,
                                           QString *reason)
{
    const QFileInfo info(path);
    QFile file(path);
    const bool special = info.exists() && !info.isFile();
    if (special || !file.open(QIODevice::ReadOnly)) {
        *reason =
            path + QStringLiteral(": ") + (special ? QStringLiteral("not a regular file") : file.errorString());
        return nullptr;
    }
    ViewLoader loader(makers);
    loader.setWorkingDirectory(info.dir());
    // The loader would translate texts through the application's translators, whatever it is told.
    QByteArray content = file.readAll();
    content.replace("<string>", "<string notr=\"true\">");
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    std::unique_ptr<QWidget> view(loader.load(&buffer));
    if (!view) {
        *reason = path + QStringLiteral(": ") + loader.errorString();
        return nullptr;
    }
    readTagsAgain(view.get());
    scaleInterface(view.get(), interfaceScale(view->font()));
    return view;
}

} // namespace tessarin
