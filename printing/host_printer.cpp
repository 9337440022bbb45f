// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/host_printer.h"

#include <QFileInfo>

#include <utility>

namespace tessarin::host {

using PrinterOutcome = Outcome<std::shared_ptr<HostPrinter>>;

HostPrinter::HostPrinter(Parts parts, PpdHandle ppd)
    : kind_(parts.kind), path_(std::move(parts.path)), identifier_(std::move(parts.identifier)),
      queue_(std::move(parts.queue)), ppd_(std::move(ppd)), translations_(*ppd_, path_)
{}

PrinterOutcome HostPrinter::open(Parts parts, const CupsOptions &numbers)
{
    CupsOptions listed;
    listed.addAll(parts.queue.savedOptions);
    listed.addAll(numbers);
    Outcome<PpdHandle> ppd = openPpd(parts.path, listed);
    if (!ppd.ok()) {
        return PrinterOutcome::failed(ppd.reason());
    }
    const CupsOptions &saved = parts.queue.savedOptions;
    cupsMarkOptions(ppd.value().get(), saved.count(), saved.data());
    return std::shared_ptr<HostPrinter>(new HostPrinter(std::move(parts), ppd.take()));
}

PrinterOutcome HostPrinter::fromPpdFile(const QString &path)
{
    const QFileInfo file(path);
    const QString base = file.completeBaseName();
    return open(
        {.kind = PrinterKind::PpdFile, .path = path, .identifier = base.isEmpty() ? file.fileName() : base});
}

PrinterOutcome HostPrinter::sample(const QString &path)
{
    return open({.kind = PrinterKind::Sample, .path = path, .identifier = QStringLiteral("sample")});
}

PrinterOutcome HostPrinter::saveAsPdf(const QString &path)
{
    return open({.kind = PrinterKind::Pdf, .path = path, .identifier = QStringLiteral("pdf")});
}

PrinterOutcome HostPrinter::fromQueue(const QueueName &name)
{
    Outcome<QueueDescription> queue = describeQueue(name);
    if (!queue.ok()) {
        return PrinterOutcome::failed(queue.reason());
    }
    const QString path = queue.value().ppdPath;
    return open({.kind = PrinterKind::Queue, .path = path, .identifier = name.queue, .queue = queue.take()});
}

PrinterOutcome HostPrinter::again(const CupsOptions &numbers) const
{
    QueueDescription queue{.name = queue_.name, .ppdPath = queue_.ppdPath, .directory = queue_.directory};
    queue.savedOptions.addAll(queue_.savedOptions);
    return open({.kind = kind_, .path = path_, .identifier = identifier_, .queue = std::move(queue)}, numbers);
}

std::optional<QString> HostPrinter::descriptionPath(const QString &descriptionType) const
{
    if (descriptionType != QLatin1String(pde::kPPDDescriptionType)) {
        return std::nullopt;
    }
    return path_;
}

std::optional<QString> HostPrinter::identifier() const
{
    return identifier_;
}

QString HostPrinter::displayName() const
{
    const QString nickname = ppdNickname(*ppd_);
    return nickname.isEmpty() ? identifier_ : nickname;
}

} // namespace tessarin::host
