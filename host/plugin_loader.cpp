// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/plugin_loader.h"

#include "printing/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPluginLoader>

#include <utility>

namespace tessarin::host {

namespace {

QString because(const QString &file, const QString &why)
{
    return TessarinPrint::tr("plug-in %1: %2").arg(file, why);
}

/// The library's path as the bundle's metadata names it.
Outcome<QString> libraryOf(const QString &directory)
{
    using Result = Outcome<QString>;
    const QFileInfo folder(directory);
    if (!folder.exists()) {
        return Result::failed(because(directory, TessarinPrint::tr("there is no such folder")));
    }
    if (!folder.isDir()) {
        return Result::failed(because(directory, TessarinPrint::tr("it is not a folder")));
    }
    const QString metadataPath = QDir(directory).filePath(QStringLiteral("bundle.json"));
    QFile file(metadataPath);
    if (!QFileInfo(metadataPath).isFile()) {
        return Result::failed(because(metadataPath, TessarinPrint::tr("the bundle's description is missing")));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Result::failed(because(metadataPath, file.errorString()));
    }
    QJsonParseError error;
    const QJsonObject metadata = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (error.error != QJsonParseError::NoError) {
        return Result::failed(
            because(metadataPath,
                    TessarinPrint::tr("at byte %1: %2").arg(QString::number(error.offset), error.errorString())));
    }
    for (const char *key : {"identifier", "library"}) {
        if (metadata.value(QLatin1String(key)).toString().isEmpty()) {
            return Result::failed(
                because(metadataPath, TessarinPrint::tr("it does not give \"%1\"").arg(QLatin1String(key))));
        }
    }
    const QString name = metadata.value(QLatin1String("library")).toString();
    if (name.contains(u'/') || name == QLatin1String("..") || name == QLatin1String(".")) {
        return Result::failed(because(
            metadataPath, TessarinPrint::tr("the library \"%1\" is not a file of the bundle's folder").arg(name)));
    }
    const QString library = QDir(directory).absoluteFilePath(name);
    if (!QFileInfo(library).isFile()) {
        return Result::failed(because(library, TessarinPrint::tr("the bundle's library is missing")));
    }
    return library;
}

/// Why the library is not one to load; an empty text when it is. Runs none of its code.
QString refusal(const QPluginLoader &loader)
{
    const QJsonObject about = loader.metaData();
    if (about.isEmpty()) {
        return TessarinPrint::tr("it is not a plug-in (%1)").arg(loader.errorString());
    }
    const QString interface = about.value(QLatin1String("IID")).toString();
    if (interface != QLatin1String(TESSARIN_PDE_PLUGIN_IID)) {
        return TessarinPrint::tr("it is a plug-in for something else (%1), not a print dialog panel")
            .arg(interface);
    }
    const QJsonValue version =
        about.value(QLatin1String("MetaData")).toObject().value(QLatin1String("protocolVersion"));
    if (!version.isDouble()) {
        return TessarinPrint::tr("it does not say for which version of the panel protocol it was made");
    }
    if (version.toDouble() != double{pde::kProtocolVersion}) {
        return TessarinPrint::tr("it was made for version %1 of the panel protocol; this dialog has version %2")
            .arg(version.toVariant().toString(), QString::number(pde::kProtocolVersion));
    }
    return {};
}

} // namespace

Outcome<LoadedPlugIn> loadPlugIn(const PlugInRequest &request)
{
    using Result = Outcome<LoadedPlugIn>;
    const Outcome<QString> library = libraryOf(request.directory);
    if (!library.ok()) {
        return Result::failed(library.reason());
    }
    QPluginLoader loader(library.value());
    loader.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (const QString why = refusal(loader); !why.isEmpty()) {
        return Result::failed(because(library.value(), why));
    }
    LoadedPlugIn loaded;
    loaded.entry = qobject_cast<pde::PlugInEntry *>(loader.instance());
    if (!loaded.entry) {
        const QString why =
            loader.isLoaded() ? TessarinPrint::tr("its root object is not a panel factory") : loader.errorString();
        return Result::failed(because(library.value(), why));
    }
    if (request.logSink) {
        loaded.entry->setLogSink(*request.logSink);
    }
    if (request.prepare) {
        request.prepare(*loader.instance());
    }
    QString why;
    loaded.bundle = loaded.entry->openBundle(request.directory, request.language, &why);
    if (!loaded.bundle) {
        return Result::failed(
            because(request.directory, why.isEmpty() ? TessarinPrint::tr("it gave no reason") : why));
    }
    loaded.plugIn = loaded.entry->createPlugIn();
    if (!loaded.plugIn || !loaded.plugIn->initWithBundle(loaded.bundle)) {
        return Result::failed(because(library.value(), TessarinPrint::tr("its panel factory could not be made")));
    }
    return loaded;
}

} // namespace tessarin::host
