// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/installation.h"
#include "host/translation.h"
#include "printing/text.h"
#include "tests/host/host_test_support.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include <array>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(AskedLanguage, IsTheLastOneBeforeTheDocuments)
{
    const auto asked = [](std::vector<const char *> arguments) {
        arguments.insert(arguments.begin(), "tessarin-print");
        return askedLanguage(static_cast<int>(arguments.size()), arguments.data());
    };
    EXPECT_EQ(asked({}), QString());
    EXPECT_EQ(asked({"--language", "de"}), u"de"_s);
    EXPECT_EQ(asked({"--language=pt_BR", "a.pdf"}), u"pt_BR"_s);
    EXPECT_EQ(asked({"--language", "de", "--language=fr"}), u"fr"_s);
    EXPECT_EQ(asked({"--language"}), QString());
    EXPECT_EQ(asked({"--languages=de", "--lang=de"}), QString());
    EXPECT_EQ(asked({"--", "--language=de"}), QString());
}

TEST(DialogTranslation, LastsAsLongAsItIsThere)
{
    {
        const Translation translation(u"de"_s);
        EXPECT_EQ(TessarinPrint::tr("Summary"), u"Zusammenfassung"_s);
    }
    EXPECT_EQ(TessarinPrint::tr("Summary"), u"Summary"_s);
    const Translation unknown(u"tlh"_s);
    EXPECT_EQ(TessarinPrint::tr("Summary"), u"Summary"_s);
}

TEST(DialogTranslation, HasPluralFormsInEnglish)
{
    const Translation english(u"en"_s);
    const auto text = [](int pages) {
        return TessarinPrint::tr("None of the document's %n pages is selected.", nullptr, pages);
    };
    EXPECT_EQ(text(1), u"The document's only page is not selected."_s);
    EXPECT_EQ(text(7), u"None of the document's 7 pages is selected."_s);
}

TEST(DialogTranslation, HasThreePluralFormsInPolish)
{
    const Translation polish(u"pl"_s);
    QSet<QString> forms;
    for (const int pages : {1, 3, 5, 22, 25}) {
        QString text = TessarinPrint::tr("the name of a preset has at most %n characters", nullptr, pages);
        forms.insert(text.remove(QString::number(pages)));
    }
    EXPECT_EQ(forms.size(), 3);
}

QString toolkitsCancel()
{
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

// The toolkit has Russian and Hebrew texts, the dialog has not: half a translation would be worse than none.
TEST(DialogTranslation, LeavesTheToolkitEnglishWhereTheDialogIs)
{
    for (const QString &code : {u"ru"_s, u"he"_s, u"en"_s, u"xyz"_s}) {
        const Translation translation(code);
        EXPECT_EQ(toolkitsCancel(), u"Cancel"_s) << code.toStdString();
        EXPECT_EQ(QCoreApplication::translate("QGuiApplication", "QT_LAYOUT_DIRECTION"), u"QT_LAYOUT_DIRECTION"_s);
    }
}

std::vector<std::string> dialogLanguages()
{
    std::vector<std::string> codes;
    const QDir folder(QStringLiteral(TESSARIN_SOURCE_DIR "/host/translations"));
    for (const QString &file : folder.entryList({u"tessarin-print_*.ts"_s})) {
        codes.push_back(file.mid(15).chopped(3).toStdString());
    }
    return codes;
}

class DialogLanguages : public testing::TestWithParam<std::string> {
protected:
    QString code() const { return QString::fromStdString(GetParam()); }
};

TEST_P(DialogLanguages, GiveNoShortcutTwiceInTheMainWindow)
{
    const Translation translation(code());
    const std::array sources = {"P&rinter:",
                                "&Print",
                                "Pre&sets",
                                "&Copies:",
                                "C&ollate",
                                "&All",
                                "Pa&ges:",
                                "O&f these:",
                                "Pap&er size:",
                                "Or&ientation:",
                                "&Two-sided:",
                                "Pages per s&heet:",
                                "Print each document as a &job of its own"};
    QMap<QChar, QString> taken;
    for (const char *source : sources) {
        const QString text = TessarinPrint::tr(source);
        const QChar letter = text.at(text.indexOf(u'&') + 1).toUpper();
        EXPECT_FALSE(taken.contains(letter)) << text.toStdString() << " and " << taken.value(letter).toStdString();
        taken.insert(letter, text);
    }
}

TEST_P(DialogLanguages, AreSpokenByTheToolkit)
{
    ASSERT_EQ(toolkitsCancel(), u"Cancel"_s);
    const Translation translation(code());
    EXPECT_EQ(toolkitsCancel() == u"Cancel"_s, GetParam() == "en") << toolkitsCancel().toStdString();
}

TEST_P(DialogLanguages, AreSpokenByTheProgram)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    program.setProcessEnvironment(environment);
    program.start(
        QStringLiteral(TESSARIN_TEST_BIN "/tessarin-print"),
        {u"--sample"_s, u"--log"_s, u"none"_s, u"--language"_s, code(), u"--no-dialog"_s, u"missing.pdf"_s});
    ASSERT_TRUE(program.waitForFinished(60000));
    const QString said = QString::fromUtf8(program.readAllStandardError());
    const Translation translation(code());
    const QString expected = TessarinPrint::tr("document %1: %2").section(u"%1"_s, 0, 0) + u"missing.pdf"_s;
    EXPECT_TRUE(said.contains(expected)) << said.toStdString() << " has not " << expected.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Codes, DialogLanguages, testing::ValuesIn(dialogLanguages()),
                         [](const testing::TestParamInfo<std::string> &row) { return row.param; });

} // namespace
} // namespace tessarin::host
