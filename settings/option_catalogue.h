// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of a printer's PPD, and the attributes of jobs, as people read them.

#ifndef TESSARIN_SETTINGS_OPTION_CATALOGUE_H
#define TESSARIN_SETTINGS_OPTION_CATALOGUE_H

#include "settings/job_settings.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tessarin::host {

/// How an option wants to be shown.
enum class OptionKind {
    Boolean, ///< has the choices "True" and "False" and no other
    PickOne, ///< one of a list
};

struct CatalogueChoice {
    QString choice{}; ///< as in the PPD and the job
    QString text{};
};

struct CatalogueOption {
    QString key{};
    QString text{};
    OptionKind kind = OptionKind::PickOne;
    QList<CatalogueChoice> choices{}; ///< without the separators of menus and without "Custom", which lacks a value
};

struct CatalogueGroup {
    QString text{};
    QList<CatalogueOption> options{};
};

// The texts come in the language that was asked for (printing/text_languages.h) where the PPD has them in it, else
// as they stand in the PPD. All are plain text, whatever markup they seem to have.

/// The options that belong into a job (JobSettings::optionKeys()), in the PPD's order and groups, without those
/// named in `hidden` and those with fewer than two choices. Groups without options are left out.
QList<CatalogueGroup> optionCatalogue(const JobSettings &settings, const QStringList &hidden);

/// One option; without choices when the PPD does not have it.
CatalogueOption catalogueOption(const HostPrinter &printer, const QString &key);

/// What the PPD calls an option; the key itself where it has no text.
QString optionText(const HostPrinter &printer, const QString &key);
/// What the PPD calls a choice; "Custom (10x15cm)" for "Custom.10x15cm"; the choice itself where it has no text.
QString choiceText(const HostPrinter &printer, const QString &key, const QString &choice);

/// What a setting is called: the PPD's text of an option, our own of a job attribute, else the key.
QString settingText(const JobSettings &settings, const QString &key);
/// What a setting's value is called; the value itself where it has no text.
QString settingValueText(const JobSettings &settings, const QString &key, const QString &value);

/// A text of a PPD as libcups hands it on: UTF-8, the file's own bytes in Latin-1, or UTF-8 that libcups took for
/// Latin-1 and encoded once more because the file says so wrongly. Empty for a null pointer.
QString ppdText(const char *text);

} // namespace tessarin::host

#endif
