// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/interface_loader.h"

#include "platform/popup_button.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QSlider>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarin {
namespace {

/// Translates every text of every context.
class Shouting : public QTranslator {
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

class InterfaceLoader : public testing::Test {
protected:
    QString write(const QByteArray &text) const
    {
        const QString path = folder_.filePath(QStringLiteral("test.ui"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        return path;
    }

    /// An interface file with views inside one top view.
    QString writeViews(const QByteArray &views) const
    {
        return write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<ui version=\"4.0\">\n"
                     "<class>top</class>\n"
                     "<widget class=\"QWidget\" name=\"top\">\n" +
                     views + "</widget>\n</ui>\n");
    }

    std::unique_ptr<QWidget> load(const QString &path, const QHash<QString, ViewMaker> &makers = {})
    {
        reason_.clear();
        return loadInterfaceFile(path, makers, &reason_);
    }

    /// The reason why a path is refused, without the path in front; the whole when the path is not in front.
    std::string refusal(const QString &path)
    {
        EXPECT_EQ(load(path), nullptr);
        const QString start = path + QStringLiteral(": ");
        return (reason_.startsWith(start) ? reason_.mid(start.size()) : reason_).toStdString();
    }

    QTemporaryDir folder_;
    QString reason_;
};

TEST_F(InterfaceLoader, MakesTheViewsOfTheFile)
{
    const auto top = load(writeViews("<widget class=\"QLabel\" name=\"caption\">"
                                     "<property name=\"text\"><string>Media Type:</string></property></widget>"
                                     "<widget class=\"QSlider\" name=\"slider\"/>"));
    ASSERT_NE(top, nullptr) << reason_.toStdString();
    EXPECT_EQ(top->objectName(), QStringLiteral("top"));
    EXPECT_EQ(top->parent(), nullptr);
    const auto *caption = top->findChild<QLabel *>(QStringLiteral("caption"));
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->text(), QStringLiteral("Media Type:"));
    EXPECT_NE(top->findChild<QSlider *>(QStringLiteral("slider")), nullptr);
    EXPECT_EQ(reason_, QString());
}

TEST_F(InterfaceLoader, KnowsThePopUpButtonAndTheTabView)
{
    const auto top = load(writeViews("<widget class=\"PopUpButton\" name=\"popup\"/>"
                                     "<widget class=\"TabView\" name=\"tabs\">"
                                     "<widget class=\"QWidget\" name=\"page\">"
                                     "<attribute name=\"title\"><string>General</string></attribute>"
                                     "</widget></widget>"));
    ASSERT_NE(top, nullptr) << reason_.toStdString();
    EXPECT_NE(qobject_cast<PopUpButton *>(top->findChild<QWidget *>(QStringLiteral("popup"))), nullptr);
    auto *tabs = qobject_cast<TabView *>(top->findChild<QWidget *>(QStringLiteral("tabs")));
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 1);
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("General"));
    EXPECT_EQ(tabs->widget(0)->objectName(), QStringLiteral("page"));
}

TEST_F(InterfaceLoader, MakesViewsOfFurtherClassesByTheirMakers)
{
    int made = 0;
    const QHash<QString, ViewMaker> makers{{QStringLiteral("LevelBox"), [&made](QWidget *parent) -> QWidget * {
                                                ++made;
                                                return new QLabel(QStringLiteral("bar"), parent);
                                            }}};
    const auto top = load(
        writeViews("<widget class=\"LevelBox\" name=\"one\"/><widget class=\"LevelBox\" name=\"two\"/>"), makers);
    ASSERT_NE(top, nullptr) << reason_.toStdString();
    EXPECT_EQ(made, 2);
    const auto *two = top->findChild<QLabel *>(QStringLiteral("two"));
    ASSERT_NE(two, nullptr) << "the file gives the name";
    EXPECT_EQ(two->parent(), top.get());
}

TEST_F(InterfaceLoader, GivesViewsTheTagsOfTheFile)
{
    const auto top = load(writeViews("<widget class=\"QSlider\" name=\"slider\">"
                                     "<property name=\"tag\" stdset=\"0\"><number>4101</number></property></widget>"
                                     "<widget class=\"QSlider\" name=\"plain\"/>"));
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(tagOf(top->findChild<QWidget *>(QStringLiteral("slider"))), 4101);
    EXPECT_EQ(tagOf(top->findChild<QWidget *>(QStringLiteral("plain"))), 0);
    EXPECT_EQ(tagOf(top.get()), -1);
}

// A screen reader asks for views that are only being made.
TEST_F(InterfaceLoader, GivesTagsToViewsThatWereAskedForThemBefore)
{
    qintptr early = -99;
    const QHash<QString, ViewMaker> makers{{QStringLiteral("Early"), [&early](QWidget *parent) -> QWidget * {
                                                auto *slider = new QSlider(parent);
                                                early = tagOf(slider);
                                                return slider;
                                            }}};
    const auto top = load(writeViews("<widget class=\"Early\" name=\"slider\"><property name=\"tag\" stdset=\"0\">"
                                     "<number>4104</number></property></widget>"),
                          makers);
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(early, 0);
    EXPECT_EQ(tagOf(top->findChild<QWidget *>(QStringLiteral("slider"))), 4104);
    EXPECT_EQ(viewWithTag(top.get(), 4104), top->findChild<QWidget *>(QStringLiteral("slider")));
}

TEST_F(InterfaceLoader, LeavesTextsAsTheFileGivesThem)
{
    Shouting translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    const auto top = load(writeViews("<widget class=\"QLabel\" name=\"caption\">"
                                     "<property name=\"text\"><string>Media Type:</string></property></widget>"));
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->findChild<QLabel *>()->text().toStdString(), "Media Type:");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    EXPECT_EQ(top->findChild<QLabel *>()->text().toStdString(), "Media Type:") << "also when languages change";
}

TEST_F(InterfaceLoader, RefusesAMissingFileWithTheReason)
{
    EXPECT_EQ(refusal(folder_.filePath(QStringLiteral("missing.ui"))), "No such file or directory");
}

TEST_F(InterfaceLoader, RefusesWhatIsNoRegularFile)
{
    EXPECT_EQ(refusal(folder_.path()), "not a regular file");
    const QString pipe = folder_.filePath(QStringLiteral("pipe.ui"));
    ASSERT_EQ(mkfifo(pipe.toStdString().c_str(), 0600), 0);
    EXPECT_EQ(refusal(pipe), "not a regular file") << "and does not wait for a writer";
}

TEST_F(InterfaceLoader, NamesFileAndLineOfBrokenXML)
{
    const QString path = writeViews("<widget class=\"QLabel\" name=\"one\"/>\n<widget class=\"QLabel\" name=>\n");
    const std::string complaint = refusal(path);
    EXPECT_NE(complaint.find("line 6"), std::string::npos) << complaint;
    EXPECT_TRUE(reason_.startsWith(path)) << reason_.toStdString();
}

TEST_F(InterfaceLoader, RefusesAFileThatBreaksOff)
{
    const std::string complaint = refusal(write("<ui version=\"4.0\">\n<widget class=\"QWidget\" name=\"top\">\n"));
    EXPECT_NE(complaint.find("line 3"), std::string::npos) << complaint;
}

TEST_F(InterfaceLoader, RefusesAFileThatIsNoInterface)
{
    for (const char *text : {"", "no XML at all", "<html><body/></html>", "<ui version=\"4.0\"></ui>"}) {
        EXPECT_NE(refusal(write(text)), "") << text;
    }
}

} // namespace
} // namespace tessarin
