// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/host/fake_panel.h"

#include <QObject>

namespace tessarin::test {

namespace {

class FakeBundle final : public pde::Bundle {
public:
    QString identifier() const override { return QStringLiteral("org.tessarin.test.fake"); }
    QString localizedString(const QString &key) const override { return key; }
};

} // namespace

/// The root object. Which interface and version it claims is a matter of the build: see the folder's CMakeLists.
class FakeEntry : public QObject, public pde::PlugInEntry {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FAKE_PLUGIN_IID FILE "fake.json")
    Q_INTERFACES(tessarin::pde::PlugInEntry)

public:
    std::shared_ptr<pde::Bundle> openBundle(const QString &, const QString &language, QString *reason) override
    {
        if (sink_) {
            sink_("openBundle\n");
        }
        if (language == QLatin1String("xx")) {
            *reason = QStringLiteral("no texts for xx");
            return nullptr;
        }
        return std::make_shared<FakeBundle>();
    }
    std::unique_ptr<pde::PlugIn> createPlugIn() override
    {
        return std::make_unique<FakePlugIn>(Offer::Panel, std::make_shared<QStringList>());
    }
    void setLogSink(pde::LogSink sink) override { sink_ = std::move(sink); }

private:
    pde::LogSink sink_{};
};

} // namespace tessarin::test

#include "fake_plugin.moc"
