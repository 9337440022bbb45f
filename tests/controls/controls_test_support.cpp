// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/controls/controls_test_support.h"

#include "controls/embedding.h"
#include "controls/menu_items.h"
#include "ink/level_box.h"
#include "platform/formatter.h"
#include "platform/interface_loader.h"
#include "platform/tab_view.h"
#include "plugin/context_lifecycle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QSignalBlocker>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace tessarin::test {

Lines logged(const Lines &messages)
{
    Lines lines;
    std::transform(messages.begin(), messages.end(), std::back_inserter(lines),
                   [](const std::string &message) { return "LOG " + message; });
    return lines;
}

Lines joined(const std::vector<Lines> &steps)
{
    Lines all;
    for (const Lines &step : steps) {
        all.insert(all.end(), step.begin(), step.end());
    }
    return all;
}

Lines section(const CapturedLog &log, const std::string &first, const std::string &end)
{
    const Lines &lines = log.lines();
    const auto from = std::find(lines.begin(), lines.end(), first);
    const auto to = std::find_if(from == lines.end() ? from : from + 1, lines.end(),
                                 [&end](const std::string &line) { return line.starts_with(end); });
    return {from, to};
}

Choices::Choices(std::initializer_list<Pair> pairs) : pairs_(pairs)
{
    for (const Pair &pair : pairs_) {
        slots_.push_back(pair.first.c_str());
        slots_.push_back(pair.second.c_str());
    }
    slots_.push_back(nullptr);
}

Record::Record() : context_(MyCreateCustomContext()) {}

Record::~Record()
{
    MyReleaseCustomContext(context_);
}

void Record::setChoices(int row, std::initializer_list<Pair> pairs)
{
    for (const Pair &pair : pairs) {
        const Pair &kept = *pairs_.emplace_back(std::make_unique<Pair>(pair));
        if (!appendPair(*context_->ppdOptions, row, kept.first.c_str(), kept.second.c_str())) {
            qFatal("row %d is full", row);
        }
    }
}

std::vector<std::string> titlesOf(const QComboBox &popup)
{
    std::vector<std::string> titles;
    for (int index = 0; index < popup.count(); ++index) {
        titles.push_back(popup.itemText(index).toStdString());
    }
    return titles;
}

std::vector<int> tagsOf(const QComboBox &popup)
{
    std::vector<int> tags;
    for (int index = 0; index < popup.count(); ++index) {
        tags.push_back(menuItemTag(&popup, index));
    }
    return tags;
}

std::vector<bool> hiddenOf(const QComboBox &popup)
{
    std::vector<bool> hidden;
    for (int index = 0; index < popup.count(); ++index) {
        hidden.push_back(menuItemIsHidden(&popup, index));
    }
    return hidden;
}

std::vector<bool> choosableOf(const QComboBox &popup)
{
    std::vector<bool> choosable;
    for (int index = 0; index < popup.count(); ++index) {
        choosable.push_back(popup.model()->flags(popup.model()->index(index, 0)).testFlag(Qt::ItemIsEnabled));
    }
    return choosable;
}

Lines fillMessages(int before, const std::vector<std::string> &texts, int active)
{
    const int count = static_cast<int>(texts.size());
    const std::string activeText =
        active >= 1 && active <= count ? texts[static_cast<std::size_t>(active) - 1] : "(null)";
    Lines messages{"\nFILLPOPUP - active = " + std::to_string(active) + " / '" + activeText + "'\n",
                   "Remove all Items - count=" + std::to_string(before) + "\n"};
    for (int n = 1; n <= count; ++n) {
        const std::string &text = texts[static_cast<std::size_t>(n) - 1];
        if (text == kSeparatorPair.second) {
            messages.emplace_back("Adding separator to popup\n");
        } else {
            messages.push_back("AppendMenuItem: " + text + "=" + std::to_string(n) + "\n");
            messages.push_back("Adding to PopUpButton: '" + text + "'\n");
        }
        if (n == active) {
            messages.push_back("Fillpopup - setactive item to #" + std::to_string(n) + "/n");
        }
    }
    const std::string selected = std::to_string(active >= 1 && active <= count ? active : 1);
    messages.push_back("FillPOPUP -> activeidx = " + selected + "\n");
    messages.push_back("SetComboControlValue to #" + selected + " of " + std::to_string(count) + "\n");
    return messages;
}

Lines slideMessages(int row, const std::string &range, int position)
{
    return {"SetScrollValue\n",
            "SetScrollValue - CtrlProperty = 0\n",
            "SetScrollValue - CtrlRef = " + std::to_string(row) + "\n",
            range,
            "currentValue = " + std::to_string(position) + "\n",
            "mark1\n",
            "mark2\n",
            "mark3\n"};
}

StableAddresses::StableAddresses()
{
    setStableAddresses(true);
}

StableAddresses::~StableAddresses()
{
    setStableAddresses(false);
}

AlertRecorder::AlertRecorder()
{
    setAlertHandler([this](const Alert &alert) {
        shown.push_back(alert);
        if (onShow) {
            onShow();
        }
        return answer;
    });
}

AlertRecorder::~AlertRecorder()
{
    setAlertHandler({});
}

Interpreter::Interpreter(bool atFirstPlace, bool atSecondPlace)
    : paths_{folder_.filePath(QStringLiteral("first")).toStdString(),
             folder_.filePath(QStringLiteral("second")).toStdString()},
      before_(ghostscriptPaths)
{
    ghostscriptPaths = {paths_[0].c_str(), paths_[1].c_str()};
    if (atFirstPlace) {
        install(0);
    }
    if (atSecondPlace) {
        install(1);
    }
}

Interpreter::~Interpreter()
{
    ghostscriptPaths = before_;
}

void Interpreter::install(std::size_t place)
{
    QFile file(QString::fromStdString(paths_[place]));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", paths_[place].c_str());
    }
}

std::unique_ptr<QWidget> rawInterface()
{
    QString reason;
    const QHash<QString, ViewMaker> makers{
        {QStringLiteral("LevelBox"), [](QWidget *parent) -> QWidget * { return new LevelBox(parent); }}};
    std::unique_ptr<QWidget> root =
        loadInterfaceFile(buildBundle()->interfacePath(QStringLiteral("TessarinPDE_C")), makers, &reason);
    if (!root) {
        qFatal("%s", qPrintable(reason));
    }
    return root;
}

void choose(QComboBox *popup, int n)
{
    popup->setCurrentIndex(n - 1);
    Q_EMIT popup->activated(n - 1);
}

void slide(QSlider *slider, int position)
{
    slider->setValue(position);
}

void turnWheel(QWidget *view, int notches)
{
    const QPointF place = view->rect().center();
    QWheelEvent event(place, view->mapToGlobal(place), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view, &event);
}

void clickItem(QComboBox *popup, int n)
{
    popup->showPopup();
    QAbstractItemView *list = popup->view();
    if (!QTest::qWaitForWindowExposed(list->window())) {
        qFatal("the list is not shown");
    }
    QTest::qWait(20);
    const QRect row = list->visualRect(popup->model()->index(n - 1, 0));
    const QPoint place = row.isValid() ? row.center() : QPoint(5, 5);
    QTest::mouseMove(list->viewport(), place);
    // The list takes no release within the double-click time of its opening.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(20);
    popup->hidePopup();
}

bool isOn(const QWidget *view)
{
    return view != nullptr && !view->testAttribute(Qt::WA_ForceDisabled);
}

bool isShown(const QWidget *view)
{
    return view != nullptr && !view->isHidden();
}

std::vector<std::string> tabIdentifiers(const PanelSession &session)
{
    std::vector<std::string> identifiers;
    const auto *tabs = qobject_cast<const TabView *>(session.context()->controls.tabView.data());
    for (int position = 0; tabs != nullptr && position < tabs->count(); ++position) {
        identifiers.push_back(tabs->identifier(position).toStdString());
    }
    return identifiers;
}

ShownPanel::ShownPanel(const std::string &ppdPath) : PanelSession(ppdPath)
{
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(open());
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        qFatal("the panel's window is not shown");
    }
}

void ShownPanel::showPage(int position)
{
    auto *tabs = qobject_cast<TabView *>(context()->controls.tabView.data());
    const QString identifier = tabs->identifier(position);
    tabs->setIdentifier(position, QStringLiteral("On"));
    tabs->setCurrentIndex(position);
    tabs->setIdentifier(position, identifier);
}

} // namespace tessarin::test
