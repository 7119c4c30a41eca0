#include "ExplorerDesktop/SystemClipboardBridge.h"

#include "ExplorerDesktop/CommandRunner.h"
#include "HostServices/Clipboard.h"
#include "aec/ClipboardFormats.h"

#include <QClipboard>
#include <QMimeData>
#include <QStringList>
#include <nlohmann/json.hpp>

namespace aec::desktop
{

namespace
{

QByteArray systemData(const QClipboard& system)
{
    const QMimeData* const data = system.mimeData();
    return data != nullptr && data->hasFormat(CSystemClipboardBridge::mimeType)
               ? data->data(CSystemClipboardBridge::mimeType)
               : QByteArray();
}

} // namespace

CSystemClipboardBridge::CSystemClipboardBridge(host::CClipboard& clipboard, QClipboard& system,
                                               CCommandRunner& runner, QObject* parent)
    : QObject(parent), clipboard_(clipboard), system_(system), runner_(runner)
{
    connect(&system_, &QClipboard::dataChanged, this, &CSystemClipboardBridge::takeSystemContent);
    if (!systemData(system_).isEmpty())
        takeSystemContent();
    clipboard_.addListener(*this);
}

CSystemClipboardBridge::~CSystemClipboardBridge()
{
    clipboard_.removeListener(*this);
}

QString CSystemClipboardBridge::namesOf(const std::wstring& data)
{
    // The explorer's clipboard data is a JSON document with the copied entities under their
    // collections; any reading failure only costs the plain-text names.
    const nlohmann::json document =
        nlohmann::json::parse(QString::fromStdWString(data).toStdString(), nullptr, false);
    QStringList names;
    if (!document.is_object() || !document.contains("collections") || !document["collections"].is_object())
        return {};
    for (const auto& [collection, entities] : document["collections"].items())
        if (entities.is_array())
            for (const nlohmann::json& entity : entities)
                if (entity.is_object() && entity.contains("name") && entity["name"].is_string())
                    names.append(QString::fromStdString(entity["name"].get<std::string>()));
    return names.join(QLatin1Char('\n'));
}

void CSystemClipboardBridge::clipboardChanged(const IClipboard& clipboard)
{
    const std::optional<std::wstring> data = clipboard.getData(clipboardFormatProjectEntities);
    // An emptied host clipboard leaves the desktop's alone: another program's content stays.
    if (!data)
        return;
    const QByteArray encoded = QString::fromStdWString(*data).toUtf8();
    if (systemData(system_) == encoded)
        return;
    auto* const mime = new QMimeData();
    mime->setData(mimeType, encoded);
    mime->setText(namesOf(*data));
    system_.setMimeData(mime);
}

void CSystemClipboardBridge::takeSystemContent()
{
    const QByteArray encoded = systemData(system_);
    runner_.run(
        [this, &encoded]
        {
            if (encoded.isEmpty())
            {
                if (clipboard_.hasData(clipboardFormatProjectEntities))
                    clipboard_.clear();
                return;
            }
            const std::wstring data = QString::fromUtf8(encoded).toStdWString();
            if (clipboard_.getData(clipboardFormatProjectEntities) != data)
                clipboard_.setData(clipboardFormatProjectEntities, data);
        });
}

} // namespace aec::desktop
