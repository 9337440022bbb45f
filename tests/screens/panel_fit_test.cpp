// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language, at the usual font and at a larger one, each text of the panel has the room that it needs, and
// no control lies over another one.

#include "platform/tab_view.h"
#include "plugin/diagnostics.h"
#include "tests/screens/text_fit.h"
#include "tests/screens/variants.h"
#include "tests/support/panel_session.h"

#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <tuple>

namespace tessarin::test {
namespace {

constexpr int kReload = 4003;
constexpr int kMediaPopUp = 4501;

class PanelTextsFit : public testing::TestWithParam<std::tuple<std::string, int>> {
protected:
    const std::string &language() const { return std::get<0>(GetParam()); }
    int percent() const { return std::get<1>(GetParam()); }
};

TEST_P(PanelTextsFit, OnEveryPage)
{
    const FontScale font(percent());
    PanelSession session(samplePPD(), "sample", buildBundle(QString::fromStdString(language())));
    QWidget window; // of the host, around the view
    QWidget *view = session.open();
    (new QVBoxLayout(&window))->addWidget(view);
    window.show();
    ASSERT_TRUE(view->isVisible());
    Diagnostics diagnostics;
    diagnostics.setInkFilePath(*session.panel, QString::fromStdString(fixturePath("ink/all-codes.ink")));
    diagnostics.press(*session.panel, kReload);
    auto *tabs = qobject_cast<TabView *>(session.context()->controls.tabView.data());
    ASSERT_NE(tabs, nullptr);
    int texts = 0;
    const int media = session.popup(1)->count();
    for (int item = 1; item <= media; ++item) { // media change what the pages show
        diagnostics.choose(*session.panel, kMediaPopUp, item);
        for (int position = 0; position < tabs->count(); ++position) {
            if (!diagnostics.selectTab(*session.panel, position)) {
                continue;
            }
            const TextFit fit = textFit(view);
            texts += fit.texts;
            EXPECT_TRUE(fit.faults.isEmpty()) << "page " << position << ", medium " << item << ":\n"
                                              << fit.faults.join(u'\n').toStdString();
        }
        if (HasFailure()) {
            break;
        }
    }
    EXPECT_GT(texts, 20 * media); // all pages were seen
    view->setParent(nullptr);     // the panel's again
}

INSTANTIATE_TEST_SUITE_P(Languages, PanelTextsFit, languagesAndFonts(), variantName);

} // namespace
} // namespace tessarin::test
