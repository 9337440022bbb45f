// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/replay_host.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace tessarin::tools {

ReplayHost::ReplayHost(QString ppdPath, QString printerID, Observer observer)
    : ppdPath_(std::move(ppdPath)), printerID_(std::move(printerID)), observer_(std::move(observer))
{
    if (QFileInfo(ppdPath_).isFile()) { // libcups would wait for ever on a pipe
        ppd_ = ppdOpenFile(QFile::encodeName(ppdPath_).constData());
    }
    if (ppd_ != nullptr) {
        ppdMarkDefaults(ppd_);
    }
}

ReplayHost::~ReplayHost()
{
    ppdClose(ppd_);
}

bool ReplayHost::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    const bool accepted = !refused_.contains(key);
    if (accepted) {
        mark(key, choice);
    }
    observer_(key, choice, accepted);
    return accepted;
}

std::optional<QString> ReplayHost::descriptionPath(const QString &descriptionType) const
{
    return descriptionType == QLatin1String(pde::kPPDDescriptionType) ? std::optional(ppdPath_) : std::nullopt;
}

void ReplayHost::mark(const QString &key, const QString &choice)
{
    const QByteArray option = key.toUtf8();
    const QByteArray name = choice.toUtf8();
    // Of an empty name libcups would look at letters behind its end.
    ppd_option_t *found = option.isEmpty() ? nullptr : ppdFindOption(ppd_, option.constData());
    if (found != nullptr && ppdFindChoice(found, name.constData()) != nullptr) {
        ppdMarkOption(ppd_, option.constData(), name.constData());
    }
}

} // namespace tessarin::tools
