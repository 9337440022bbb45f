// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/plugin/plugin_test_support.h"

#include <QFile>

#include <array>
#include <cstdio>

namespace tessarin::test {

namespace {

constexpr char kInterfaceName[] = "TessarinPDE_C.ui";

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

} // namespace

std::string address(const void *object)
{
    if (object == nullptr) {
        return "0x0";
    }
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "0x%llx",
                  static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(object)));
    return text.data();
}

std::string described(const std::string &className, const void *object)
{
    return "<" + className + ": " + address(object) + ">";
}

std::string panelLine(const std::string &tag, const pde::Panel *panel, const std::string &message)
{
    return tag + " self(" + described("PasswordPDE", panel) + ") " + message;
}

Ghostscript::Ghostscript(bool installed)
{
    ghostscriptPaths = {"/nonexistent/gs", installed ? "/dev/null" : "/nonexistent/bin/gs"};
}

QByteArray interfaceText()
{
    QFile file(QStringLiteral(TESSARIN_TEST_BUNDLE "/") + QLatin1String(kInterfaceName));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no interface file");
    }
    return file.readAll();
}

TemporaryBundle::TemporaryBundle(const QByteArray &interface)
{
    writeFile(folder_.filePath(QStringLiteral("bundle.json")), R"({"identifier": "org.example.temporary"})");
    if (!interface.isEmpty()) {
        writeInterface(interface);
    }
}

std::shared_ptr<DirectoryBundle> TemporaryBundle::open() const
{
    QString reason;
    auto bundle = DirectoryBundle::open(folder_.path(), QStringLiteral("en"), &reason);
    if (!bundle) {
        qFatal("no bundle: %s", qPrintable(reason));
    }
    return bundle;
}

std::string TemporaryBundle::path(const char *name) const
{
    return folder_.filePath(QString::fromUtf8(name)).toStdString();
}

void TemporaryBundle::writeInterface(const QByteArray &interface) const
{
    writeFile(folder_.filePath(QLatin1String(kInterfaceName)), interface);
}

std::shared_ptr<PasswordPDE> makePanel(const std::shared_ptr<pde::HostCallback> &host,
                                       const std::shared_ptr<pde::Bundle> &bundle)
{
    auto panel = std::make_shared<PasswordPDE>();
    panel->initWithCallback(host, bundle);
    return panel;
}

} // namespace tessarin::test
