// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/printing_services.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessarin {
namespace {

class FakePrinter : public pde::Printer {
public:
    std::optional<QString> descriptionPath(const QString &descriptionType) const override
    {
        asked.push_back(descriptionType);
        return path;
    }
    std::optional<QString> identifier() const override { return name; }

    std::optional<QString> path;
    std::optional<QString> name;
    mutable std::vector<QString> asked;
};

class FakeSession : public pde::PrintSession {
public:
    explicit FakeSession(pde::Printer *printer) : printer_(printer) {}
    pde::Printer *currentPrinter() override { return printer_; }

private:
    pde::Printer *printer_;
};

TEST(PrintingServices, GiveTheSessionsCurrentPrinter)
{
    FakePrinter printer;
    FakeSession session(&printer);
    pde::Printer *found = nullptr;
    EXPECT_EQ(PMSessionGetCurrentPrinter(&session, &found), 0);
    EXPECT_EQ(found, &printer);
}

TEST(PrintingServices, FailWithoutASessionOrAPrinter)
{
    FakePrinter printer;
    FakeSession empty(nullptr);
    for (pde::PrintSession *session :
         {static_cast<pde::PrintSession *>(nullptr), static_cast<pde::PrintSession *>(&empty)}) {
        pde::Printer *found = &printer;
        EXPECT_NE(PMSessionGetCurrentPrinter(session, &found), 0);
        EXPECT_EQ(found, nullptr);
    }
}

TEST(PrintingServices, GiveTheLocationOfADescription)
{
    FakePrinter printer;
    printer.path = QStringLiteral("/etc/cups/ppd/M\u00FCnze.ppd");
    StringRef url;
    EXPECT_EQ(PMPrinterCopyDescriptionURL(&printer, "PMPPDDescriptionType", &url), 0);
    ASSERT_NE(url, nullptr);
    EXPECT_EQ(CFURLCopyPath(url)->text(), "/etc/cups/ppd/M\xC3\xBCnze.ppd");
    EXPECT_EQ(printer.asked, std::vector<QString>{QStringLiteral("PMPPDDescriptionType")});
}

TEST(PrintingServices, FailWithoutADescription)
{
    const FakePrinter printer;
    for (const pde::Printer *without :
         {static_cast<const pde::Printer *>(nullptr), static_cast<const pde::Printer *>(&printer)}) {
        StringRef url = makeString(std::string("stale"));
        EXPECT_NE(PMPrinterCopyDescriptionURL(const_cast<pde::Printer *>(without), "PMPPDDescriptionType", &url),
                  0);
        EXPECT_EQ(url, nullptr);
    }
    EXPECT_EQ(CFURLCopyPath(nullptr), nullptr);
}

TEST(PrintingServices, TellAnEmptyPathFromNone)
{
    FakePrinter printer;
    printer.path = QStringLiteral("");
    StringRef url;
    EXPECT_EQ(PMPrinterCopyDescriptionURL(&printer, "PMPPDDescriptionType", &url), 0);
    ASSERT_NE(url, nullptr);
    EXPECT_EQ(CFURLCopyPath(url)->text(), "");
}

TEST(PrintingServices, GiveThePrintersIdentifier)
{
    FakePrinter printer;
    EXPECT_EQ(PMPrinterGetID(&printer), nullptr) << "it has none";
    EXPECT_EQ(PMPrinterGetID(nullptr), nullptr);
    printer.name = QStringLiteral("Studio");
    ASSERT_NE(PMPrinterGetID(&printer), nullptr);
    EXPECT_EQ(PMPrinterGetID(&printer)->text(), "Studio");
    printer.name = QStringLiteral("");
    ASSERT_NE(PMPrinterGetID(&printer), nullptr);
    EXPECT_EQ(PMPrinterGetID(&printer)->text(), "");
}

} // namespace
} // namespace tessarin
