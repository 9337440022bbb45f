// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The settings of one printer in one dialog: what every page reads, changes and follows.

#ifndef TESSARIN_SETTINGS_JOB_SETTINGS_H
#define TESSARIN_SETTINGS_JOB_SETTINGS_H

#include "printing/host_printer.h"
#include "printing/ticket.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace tessarin::host {

/// Who made a change.
enum class ChangeOrigin {
    Panel, ///< the panel of the printer's plug-in, which knows it already
    Page,  ///< a person on one of the dialog's own pages
    Host,  ///< the dialog: a preset, a resolved conflict, a default
};

/// A key and the value that it is to have.
struct KeyValue {
    QString key{};
    QString value{};
};
using KeyValues = QList<KeyValue>;

/// A standard attribute of print jobs that the pages offer, under its name in the option lists of libcups.
struct JobAttribute {
    const char *name;
    const char *defaultValue; ///< empty: not sent until it is set
};

/// The standard attributes, in the order in which pages and summary show them: "copies" (1 to 9999),
/// "multiple-document-handling" (collated or not), "page-ranges" (as normalPageRanges() writes them), "page-set"
/// (all, odd, even), "orientation-requested" (3 portrait, 4 landscape, 5 and 6 their reverses; empty: the
/// document's own) and "number-up" (1, 2, 4, 6, 9 or 16 pages on a side).
const QList<JobAttribute> &jobAttributes();

/// True when a standard attribute can have this value.
bool isPossibleAttribute(const char *name, const QString &value);

inline constexpr char kCopies[] = "copies";
inline constexpr char kCollate[] = "multiple-document-handling";
inline constexpr char kCollated[] = "separate-documents-collated-copies";
inline constexpr char kUncollated[] = "separate-documents-uncollated-copies";
inline constexpr char kPageRanges[] = "page-ranges";
inline constexpr char kPageSet[] = "page-set";
inline constexpr char kOrientation[] = "orientation-requested";
inline constexpr char kNumberUp[] = "number-up";

/// Options of the PPD and job attributes by key, compared without regard to case. A change marks the PPD's choice
/// and is told by changed(). Options that the PPD does not have and values that are not possible are refused.
///
/// Which values an option takes: a choice that the PPD lists, or a whole number that it does not list (an option
/// set by a slider lists only some of the values that the driver takes). Never the text of a menu separator. The
/// PPD's "Collate" and the attribute that says the same follow each other.
class JobSettings final : public QObject {
    Q_OBJECT

public:
    explicit JobSettings(std::shared_ptr<HostPrinter> printer);

    HostPrinter &printer() const { return *printer_; }
    const std::shared_ptr<HostPrinter> &sharedPrinter() const { return printer_; }

    /// True for an option of the PPD.
    bool hasOption(const QString &key) const;
    /// True for an option of the PPD and for a standard attribute.
    bool knows(const QString &key) const;
    /// The keys of all options of the PPD that belong into a job, in the PPD's order: without the printer's
    /// installed hardware and without "PageRegion", which repeats "PageSize".
    const QStringList &optionKeys() const { return optionKeys_; }

    /// What the job would get: an option's choice or an attribute's value; empty for an unknown key or an unset
    /// attribute.
    QString value(const QString &key) const;
    /// The value as the printer was opened: the queue's and the user's defaults over the PPD's.
    QString defaultValue(const QString &key) const;
    bool differsFromDefault(const QString &key) const;

    /// Changes a value and tells of it. Answers whether it was taken. Taking what holds already tells nothing, but
    /// puts it into the ticket.
    bool set(const QString &key, const QString &value, ChangeOrigin origin);
    /// The setting of this printer that one written on a command line stands for, its value as it would be kept; as
    /// it stands for what is neither option nor attribute known here.
    KeyValue meant(const KeyValue &written) const;
    /// Sets what a person wrote on a command line, where the standard attributes stand for options of the PPD
    /// ("media" for PageSize, "sides" for Duplex, "landscape" for the orientation) and anything that is neither
    /// option nor attribute known here goes into the job as it is.
    bool setAsWritten(const KeyValue &written);
    /// Keeps a hint of the panel, which is no option of the job ("ColorModel": what the pages will look like).
    void setHint(const QString &key, const QString &value);

    /// What was set so far, in the order of the first settings, without what was never touched.
    const JobTicket &ticket() const { return ticket_; }
    /// All that the job gets: what was set, every other option and attribute at its value, and the standard
    /// attributes that could overrule an option, made to agree with it: "media" with PageSize, "sides" with
    /// Duplex, "print-color-mode" with the colour hint.
    JobTicket completeTicket() const;
    /// True when the hint or the PPD's colour option says that the job is printed in greys.
    bool isGrey() const;

signals:
    void changed(const QString &key, const QString &value, ChangeOrigin origin);
    void hintChanged(const QString &key, const QString &value);

private:
    bool setOption(ppd_option_t &option, const QString &value, ChangeOrigin origin);
    bool setAttribute(const JobAttribute &attribute, const QString &value, ChangeOrigin origin);
    QString optionValue(const QString &key) const;

    std::shared_ptr<HostPrinter> printer_;
    QStringList optionKeys_{};
    QHash<QString, QString> defaults_{}; ///< by lower-case key
    JobTicket ticket_{};
};

} // namespace tessarin::host

#endif
