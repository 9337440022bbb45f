// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink data tool: its commands, messages and exit status.

#include "tests/support/recording_host.h"
#include "tests/tools/run_program.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr char kCounters[] = "TotalInk_K=5000\nLastInk_K=30\nTotalInk_C=12345\nnonsense\nLastInk_ZZ=1\n";

ProgramRun inkdata(const QStringList &arguments, const QByteArray &input = {})
{
    return runProgram(QStringLiteral("tessarin-inkdata"), arguments, input);
}

class InkdataProgram : public testing::Test {
protected:
    QString writeFile(const QString &name, const QByteArray &content)
    {
        const QString path = folder_.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    /// The minimal printer's PPD with what "write" put out for the text, the way the scheduler stores it.
    QString ppdWith(const QByteArray &text)
    {
        const ProgramRun run = inkdata({"write", "-"}, text);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.output, "");
        QFile base(QString::fromStdString(ppdFixture("minimal")));
        EXPECT_TRUE(base.open(QIODevice::ReadOnly));
        QByteArray ppd = base.readAll();
        for (QByteArray line : QByteArray::fromStdString(run.errors).split('\n')) {
            EXPECT_TRUE(line.isEmpty() || line.startsWith("PPD: ")) << line.constData();
            for (const QByteArray &entry : line.mid(5).split(' ')) {
                const qsizetype equals = entry.indexOf('=');
                if (equals > 0) {
                    const QByteArray value = entry.mid(equals + 1);
                    ppd += "*" + entry.first(equals) + ": " + (value == "\"\"" ? value : '"' + value + '"') + "\n";
                }
            }
        }
        return writeFile(QStringLiteral("with-counters.ppd"), ppd);
    }

private:
    QTemporaryDir folder_;
};

TEST_F(InkdataProgram, WritesOneLineForASmallText)
{
    const ProgramRun run = inkdata({"write", writeFile(QStringLiteral("counters.ink"), kCounters)});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(QByteArray::fromStdString(run.errors).startsWith("PPD: EXData0000="));
    EXPECT_TRUE(QByteArray::fromStdString(run.errors).endsWith(" EXData0001=\"\"\n"));
}

TEST_F(InkdataProgram, WritesTheTerminatorAloneForAnEmptyFile)
{
    EXPECT_EQ(inkdata({"write", "-"}).errors, "PPD: EXData0000=\"\"\n");
}

TEST_F(InkdataProgram, ReadsBackWhatItWrote)
{
    const ProgramRun run = inkdata({"read", ppdWith(kCounters)});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, kCounters);
}

TEST_F(InkdataProgram, ShowsATableOfACounterFileAndOfAPPD)
{
    const std::string expected = "Code  Channel          Last job        Total\n"
                                 "K     Black                  30         5000\n"
                                 "C     Cyan                    -        12345\n";
    EXPECT_EQ(inkdata({"show", writeFile(QStringLiteral("counters.ink"), kCounters)}).output, expected);
    EXPECT_EQ(inkdata({"show", ppdWith(kCounters)}).output, expected);
}

TEST_F(InkdataProgram, ShowsJson)
{
    const ProgramRun run = inkdata({"show", "--json", writeFile(QStringLiteral("counters.ink"), kCounters)});
    const QJsonArray rows = QJsonDocument::fromJson(QByteArray::fromStdString(run.output)).array();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[1].toObject(),
              (QJsonObject{{"code", "C"}, {"name", "Cyan"}, {"last", QJsonValue::Null}, {"total", 12345}}));
    EXPECT_EQ(inkdata({"show", "--json", writeFile(QStringLiteral("none.ink"), "nothing\n")}).output, "[]\n");
}

TEST_F(InkdataProgram, SaysWhatIsWrong)
{
    struct Case {
        QStringList arguments;
        int status;
        const char *reason;
    };
    const QString minimal = QString::fromStdString(ppdFixture("minimal"));
    const QString text = writeFile(QStringLiteral("plain.txt"), "no PPD\n");
    const std::vector<Case> cases{
        {{}, 2, "usage: tessarin-inkdata write FILE"},
        {{"paint", "a"}, 2, "usage: "},
        {{"read"}, 2, "usage: "},
        {{"read", "--json", minimal}, 2, "usage: "},
        {{"--nonsense"}, 2, "Unknown option 'nonsense'"},
        {{"read", "/nonexistent.ppd"}, 1, "/nonexistent.ppd: not a PPD that can be read"},
        {{"read", text}, 1, "plain.txt: not a PPD that can be read"},
        {{"read", minimal}, 1, "the PPD carries no ink counters"},
        {{"show", minimal}, 1, "the PPD carries no ink counters"},
        {{"show", "/nonexistent.ink"}, 1, "/nonexistent.ink: No such file or directory"},
        {{"write", "/nonexistent.ink"}, 1, "/nonexistent.ink: No such file or directory"},
        {{"write", "/dev/zero"}, 1, "/dev/zero: "},
        {{"show", "/"}, 1, "/: Is a directory"},
    };
    for (const Case &c : cases) {
        const ProgramRun run = inkdata(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.reason;
        EXPECT_NE(run.errors.find(c.reason), std::string::npos) << run.errors;
        EXPECT_EQ(run.output, "");
    }
}

TEST_F(InkdataProgram, RefusesABlockThatIsTooLarge)
{
    const ProgramRun run = inkdata({"write", "-"}, QByteArray(16777217, 'x'));
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("larger than 16 MiB"), std::string::npos);
}

TEST_F(InkdataProgram, ExplainsItself)
{
    const ProgramRun run = inkdata({"--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.output.find("tessarin-inkdata show --json /var/log/tessarin/photo.ink"), std::string::npos);
}

} // namespace
} // namespace tessarin::test
