#include "nodemapname.h"

#include <QStringList>
#include <QVector>

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
    // Every item of a tree stores its context: hand out shared copies of a few
    // strings instead of a fresh one per item.
    static const QVector<QString> contexts = [] {
        QVector<QString> texts;
        for (const ContextRow& row : contextTable)
            texts.append(QString::fromLatin1(row.context));
        texts.append(QStringLiteral("Invalid"));
        return texts;
    }();
    for (int i = 0; i < int(sizeof(contextTable) / sizeof(contextTable[0])); ++i) {
        if (part == QLatin1String(contextTable[i].nodeMapPart))
            return contexts.at(i);
    }
    return contexts.last();
}
