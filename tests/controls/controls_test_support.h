// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of the controls share: choice lists and pop-ups of their own, a person's ways with the panel's
// controls, and stand-ins for what lies outside (alerts, the interpreter's file, addresses in the log).

#ifndef TESSARIN_TESTS_CONTROLS_CONTROLS_TEST_SUPPORT_H
#define TESSARIN_TESTS_CONTROLS_CONTROLS_TEST_SUPPORT_H

#include "platform/alerts.h"
#include "platform/popup_button.h"
#include "platform/view_tags.h"
#include "plugin/panel_context.h"
#include "ppd/option_table.h"
#include "tests/support/captured_log.h"
#include "tests/support/panel_session.h"

#include <QTemporaryDir>

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessarin::test {

using Lines = std::vector<std::string>;
using Pair = std::pair<std::string, std::string>;
using Changes = std::vector<Change>;

/// The separator's pair as a list holds it.
inline const Pair kSeparatorPair{"---separator---", "---separator---"};

/// The messages as the lines that the plain functions log.
Lines logged(const Lines &messages);
/// The messages of several steps, one after the other.
Lines joined(const std::vector<Lines> &steps);
/// The lines from the first that is exactly `first` up to, but without, the next that starts with `end` (or all).
Lines section(const CapturedLog &log, const std::string &first, const std::string &end);

/// A choice list with storage of its own.
class Choices {
public:
    Choices(std::initializer_list<Pair> pairs);
    operator ChoiceList() const { return slots_; }

private:
    std::vector<Pair> pairs_;
    std::vector<const char *> slots_;
};

/// A context record of its own, with an empty option table.
class Record {
public:
    Record();
    ~Record();
    Record(const Record &) = delete;
    Record &operator=(const Record &) = delete;

    operator PanelContext *() const { return context_; }
    PanelContext *operator->() const { return context_; }
    /// Gives a row of the option table its pairs.
    void setChoices(int row, std::initializer_list<Pair> pairs);

private:
    PanelContext *context_;
    std::vector<std::unique_ptr<Pair>> pairs_;
};

std::vector<std::string> titlesOf(const QComboBox &popup);
std::vector<int> tagsOf(const QComboBox &popup);
std::vector<bool> hiddenOf(const QComboBox &popup);
/// Which items a person may choose.
std::vector<bool> choosableOf(const QComboBox &popup);

/// The messages of filling a pop-up that held `before` items with ordinary entries, `active` among them.
Lines fillMessages(int before, const std::vector<std::string> &texts, int active);
/// The messages of showing a slider's value, with stable addresses.
Lines slideMessages(int row, const std::string &range, int position);

/// Keeps addresses out of the log: pointers read "0xP", handles 0.
class StableAddresses {
public:
    StableAddresses();
    ~StableAddresses();
    StableAddresses(const StableAddresses &) = delete;
    StableAddresses &operator=(const StableAddresses &) = delete;
};

/// Answers alerts and remembers them.
class AlertRecorder {
public:
    AlertRecorder();
    ~AlertRecorder();
    AlertRecorder(const AlertRecorder &) = delete;
    AlertRecorder &operator=(const AlertRecorder &) = delete;

    std::vector<Alert> shown;
    std::optional<int> answer = 0; ///< button pressed; nothing: cannot be shown
    std::function<void()> onShow;
};

/// Where the interpreter is, for the length of a scope.
class Interpreter {
public:
    Interpreter(bool atFirstPlace, bool atSecondPlace);
    ~Interpreter();
    Interpreter(const Interpreter &) = delete;
    Interpreter &operator=(const Interpreter &) = delete;
    /// Puts the file of a place (0 or 1) there.
    void install(std::size_t place);

private:
    QTemporaryDir folder_;
    std::array<std::string, 2> paths_;
    std::array<const char *, 2> before_;
};

/// A new view with a tag.
template <typename View>
View *addTagged(QWidget *parent, qintptr tag)
{
    auto *view = new View(parent);
    setTagOf(view, tag);
    return view;
}

/// The interface as its file gives it, before any panel has embedded it.
std::unique_ptr<QWidget> rawInterface();

/// A person's choice of item n, as the toolkit tells of it.
void choose(QComboBox *popup, int n);
/// A person's movement of a slider.
void slide(QSlider *slider, int position);

/// Turns the wheel over a view by notches; away from the person is positive.
void turnWheel(QWidget *view, int notches);
/// Opens the pop-up's list, clicks the item with a 1-based number, and closes the list.
void clickItem(QComboBox *popup, int n);

/// Whether the view itself is enabled or shown, whatever holds it.
bool isOn(const QWidget *view);
bool isShown(const QWidget *view);

/// The identifiers of the tabs: "On", "Off" or "" for none.
std::vector<std::string> tabIdentifiers(const PanelSession &session);

/// A panel in a window on the screen.
class ShownPanel : public PanelSession {
public:
    explicit ShownPanel(const std::string &ppdPath);

    /// Brings the page at a position to the front, whatever its identifier says.
    void showPage(int position);

    QWidget window;
};

} // namespace tessarin::test

#endif
