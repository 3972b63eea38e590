#pragma once

#include "zarvexviewercomponents_export.h"

#include <QSharedPointer>
#include <QString>

class QDomDocument;
class QDomElement;

namespace ParameterCollection {
class IParameterCollection;
}

namespace Plugin {
namespace CameraPool {
class IBaseInfo;
}
} // namespace Plugin

/*!
 * Imposes a visibility and an access mode of the viewer's own on the features
 * of a node map, before the node map reaches the tree.
 *
 * One XML file is chosen by the camera's transport-layer type and the node
 * map's name, first from "<application dir>/../share/zarvex/viewer/", then
 * from the library's resources under ":/zarvexviewercomponents/Resources/".
 * Each element child of the document element is one item; inside an item the
 * first descendant "Name" names the feature, the first "Visibility" and
 * "AccessMode" give the texts handed to IAdvancedParameterAccess::setProperty.
 *
 * No state: every call reads its file afresh. Internal to the library.
 *
 * Filter files can be edited by anyone, so a file is refused before it is
 * parsed when it is larger than MaximumFileSize, carries a document type
 * declaration (the only way to declare entities) or nests elements deeper
 * than MaximumElementDepth. A refusal is logged and ends the search just like
 * a file that does not parse.
 */
class ZVC_AUTOTEST_EXPORT NodeMapFilter
{
public:
    //! Largest filter file that is parsed, in bytes. The shipped ones are a few kilobytes.
    static constexpr qint64 MaximumFileSize = 1024 * 1024;
    //! Deepest element nesting that is parsed; the document element is at depth 1.
    static constexpr int MaximumElementDepth = 256;

    NodeMapFilter() = delete;

    /*!
     * Finds the filter for info's transport-layer type and nodeMapName and
     * imposes every item of it on collection. True when a document was found,
     * parsed and all its items visited, whatever each item achieved. False
     * for a null collection or when createDocument fails.
     */
    static bool applyFilter(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName);

    /*!
     * Chooses the filter file and parses it into document. False for a null
     * info, when no candidate opens, and when the file that opened is refused
     * or does not parse (the later candidates are then not tried).
     */
    static bool createDocument(
        QDomDocument& document, QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName);

private:
    /*!
     * createDocument() without the copy: the document may be the one kept
     * for the next tree that takes the same file, and is only to be read.
     */
    static bool findDocument(
        QDomDocument& document, QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName);

public:
    /*!
     * Imposes one item on collection: visibility first, then access mode.
     * False when the item has no usable name, the feature is unknown or a
     * zombie that isn't imposable, or setProperty throws.
     */
    static bool processElement(
        QDomElement& element, QSharedPointer<ParameterCollection::IParameterCollection> collection);
};
