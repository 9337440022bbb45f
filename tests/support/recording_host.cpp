// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/recording_host.h"

namespace tessarin::test {

std::string fixturePath(const std::string &name)
{
    return std::string(TESSARIN_FIXTURES) + "/" + name;
}

std::string ppdFixture(const std::string &name)
{
    return fixturePath("ppd/" + name + ".ppd");
}

std::string samplePPD()
{
    return TESSARIN_SAMPLE_PPD;
}

RecordingHost::RecordingHost(const std::string &ppdPath, std::string identifier)
    : printerIdentifier(QString::fromStdString(identifier))
{
    if (!ppdPath.empty()) {
        path = QString::fromStdString(ppdPath);
        ppd_ = ppdOpenFile(ppdPath.c_str());
        if (ppd_ != nullptr) {
            ppdMarkDefaults(ppd_);
        }
    }
}

RecordingHost::~RecordingHost()
{
    if (ppd_ != nullptr) {
        ppdClose(ppd_);
    }
}

bool RecordingHost::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    const Change change(key.toStdString(), choice.toStdString());
    changes.push_back(change);
    const bool accepted = !refusedKeys.contains(change.first);
    if (accepted) {
        mark(change.first, change.second);
    }
    if (onChange) {
        onChange(change);
    }
    return accepted;
}

std::optional<QString> RecordingHost::descriptionPath(const QString &descriptionType) const
{
    const_cast<RecordingHost *>(this)->askedTypes.push_back(descriptionType);
    return path;
}

void RecordingHost::mark(const std::string &key, const std::string &choice)
{
    if (ppd_ != nullptr) {
        ppdMarkOption(ppd_, key.c_str(), choice.c_str());
    }
}

std::string RecordingHost::marked(const std::string &key) const
{
    const ppd_choice_t *choice = ppd_ != nullptr ? ppdFindMarkedChoice(ppd_, key.c_str()) : nullptr;
    return choice != nullptr ? choice->choice : "";
}

} // namespace tessarin::test
