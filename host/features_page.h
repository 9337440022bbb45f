// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The page of what else the printer's PPD offers.

#ifndef TESSARIN_HOST_FEATURES_PAGE_H
#define TESSARIN_HOST_FEATURES_PAGE_H

#include "settings/job_settings.h"
#include "settings/option_catalogue.h"

#include <QFormLayout>
#include <QLabel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace tessarin::host {

/// The options of the PPD by its groups, without those that other pages show. What a person chooses is told by
/// chosen() and not yet set.
class FeaturesPage final : public QWidget {
    Q_OBJECT

public:
    /// `settings` outlives this widget; `hiddenKeys` are the options that the panel shows.
    FeaturesPage(JobSettings &settings, const QStringList &hiddenKeys, QWidget *parent = nullptr);

    /// Shows what holds.
    void refresh();

signals:
    void chosen(const QString &key, const QString &choice);

private:
    struct Row {
        QWidget *group = nullptr;
        QLabel *caption = nullptr; ///< null: the control bears its caption itself
        QWidget *control = nullptr;
        std::function<void()> refresh{};
        QString words{}; ///< what the filter looks in
    };

    void addRow(JobSettings &settings, const CatalogueGroup &group, const CatalogueOption &option, QWidget *box,
                QFormLayout *form);
    void filter(const QString &text);

    QList<Row> rows_{};         ///< their widgets are owned by this one
    QLabel *nothing_ = nullptr; ///< says that there is nothing to show; owned by this widget
};

} // namespace tessarin::host

#endif
