// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel really looks up while it is used, compared with what the translations hold.

#include "controls/setting_help.h"
#include "ink/channel_table.h"
#include "ink/level_display.h"
#include "platform/alerts.h"
#include "plugin/string_helpers.h"
#include "tests/support/panel_session.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// Keys and translations of a language.
QMap<QString, QString> translationsOf(const std::string &code)
{
    QFile file(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/translations/TessarinPDE_%1.ts")
                   .arg(QString::fromStdString(code)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QMap<QString, QString> texts;
    QString key;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("source")) {
            key = reader.readElementText();
        } else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            texts.insert(key, reader.readElementText());
        }
    }
    return texts;
}

std::vector<std::string> shippedLanguages()
{
    std::vector<std::string> codes;
    const QDir folder(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/translations"));
    for (const QString &file : folder.entryList({QStringLiteral("TessarinPDE_*.ts")})) {
        codes.push_back(file.mid(12).chopped(3).toStdString());
    }
    return codes;
}

/// A bundle that notes what it is asked for, in place of the one that a panel has set.
class AskedBundle : public pde::Bundle {
public:
    AskedBundle() : bundle_(mybundle) { mybundle = this; }
    ~AskedBundle() override { mybundle = bundle_; }

    QString identifier() const override { return bundle_->identifier(); }
    QString localizedString(const QString &key) const override
    {
        asked.insert(key);
        return bundle_->localizedString(key);
    }

    mutable QSet<QString> asked;

private:
    pde::Bundle *bundle_;
};

class LookedUpTexts : public testing::TestWithParam<std::string> {
protected:
    LookedUpTexts()
        : session_(samplePPD(), "sample", buildBundle(QString::fromStdString(GetParam()))),
          texts_(translationsOf(GetParam()))
    {
        setAlertHandler([](const Alert &) { return 0; });
    }
    ~LookedUpTexts() override { setAlertHandler({}); }

    /// Everything that shows a text of the panel's own: each medium, all ink channels, each line of the summary.
    QSet<QString> useEverything()
    {
        const AskedBundle bundle;
        session_.open();
        QComboBox *media = session_.popup(1);
        for (int item = 0; item < media->count(); ++item) {
            media->setCurrentIndex(item);
            emit media->activated(item);
            summary();
            describeAll();
        }
        PanelSettings &settings = session_.settings();
        for (std::size_t first : {0, 10}) { // a box has places for twelve of the twenty channels
            for (std::size_t channel = 0; channel < kInkChannelCount; ++channel) {
                settings.inkSeen[channel] = channel / 10 == first / 10 ? 1 : 0;
            }
            SetInkValues(session_.context());
        }
        for (QCheckBox *box : session_.panel->contentView()->findChildren<QCheckBox *>()) {
            box->setChecked(!box->isChecked());
        }
        summary();
        return bundle.asked;
    }

    /// What the tool tips say.
    void describeAll()
    {
        for (const QWidget *view : session_.panel->contentView()->findChildren<QWidget *>()) {
            settingDescription(*session_.context(), view);
        }
    }

    QStringList summary()
    {
        session_.panel->saveValuesAndReturnError(nullptr);
        const std::optional<pde::Summary> summary = session_.panel->summaryInfo();
        return summary ? summary->displayOrder.value_or(QStringList()) : QStringList();
    }

    PanelSession session_;
    QMap<QString, QString> texts_;
};

TEST_P(LookedUpTexts, HaveATranslation)
{
    // A view that is set up again asks for what it shows by then; a slider's value is the same in every language.
    const QList<QString> shown = texts_.values();
    const QRegularExpression value(QStringLiteral("^(D?[+-]?[0-9]+%?|[^A-Za-z]*)$"));
    for (const QString &text : useEverything()) {
        EXPECT_TRUE(texts_.contains(text) || shown.contains(text) || value.match(text).hasMatch())
            << "no translation of: " << qPrintable(text);
    }
}

TEST_P(LookedUpTexts, AreAllThatIsTranslated)
{
    QSet<QString> asked = useEverything();
    asked.insert(QStringLiteral("Tessarin Settings")); // the panel's name comes from the factory's bundle
    for (const char *sentence : settingSentences) {    // some need a printer of their own: their tests show them
        asked.insert(QString::fromUtf8(sentence));
    }
    for (const QString &key : texts_.keys()) {
        EXPECT_TRUE(asked.contains(key)) << "nothing looks up: " << qPrintable(key);
    }
}

TEST_P(LookedUpTexts, KeepTheLinesOfTheSummaryApart)
{
    // Two labels with one text would leave one line.
    session_.open();
    const QStringList labels = summary();
    EXPECT_GE(labels.size(), 30);
    EXPECT_EQ(QSet<QString>(labels.begin(), labels.end()).size(), labels.size()) << qPrintable(labels.join(u'\n'));
}

INSTANTIATE_TEST_SUITE_P(Languages, LookedUpTexts, testing::ValuesIn(shippedLanguages()));

} // namespace
} // namespace tessarin::test
