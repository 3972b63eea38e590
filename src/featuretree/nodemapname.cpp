#include "nodemapname.h"

#include <QStringList>

namespace {

struct ContextRow
{
    const char* nodeMapPart;
    const char* context;
};

// Three rows differ from their key on purpose: the catalogues use those names.
const ContextRow contextTable[] = {
    { "CameraInstance", "CameraInstance" },
    { "DeviceTransportLayer", "TransportLayer" },
    { "StreamGrabber0", "StreamGrabber" },
    { "ExcelRunner", "ExcelRunner" },
    { "ImageFormatConverter", "ImageFormatConverter" },
    { "DeepViewer", "DeepViewer" },
    { "ChunkData", "ChunkData" },
    { "CameraDevice", "CameraDevice" },
    { "EventGrabber", "EventGrabber" },
    { "GenTl", "Interface" },
};

} // namespace

QString GetNodemapName(QString fullName)
{
    fullName.remove(0, 1);
    const QString part = fullName.split(QLatin1Char('/'), Qt::KeepEmptyParts, Qt::CaseSensitive).first();
    for (const ContextRow& row : contextTable) {
        if (part == QLatin1String(row.nodeMapPart))
            return QLatin1String(row.context);
    }
    return QStringLiteral("Invalid");
}
