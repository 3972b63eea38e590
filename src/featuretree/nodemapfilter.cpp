#include "nodemapfilter.h"

#include "messages/exceptionlogging.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDomDocument>
#include <QDomElement>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <QXmlStreamReader>

#include <exception>

namespace {

const char* const BesideApplicationDirectory = "/../share/zarvex/viewer/";
const char* const ResourceDirectory = ":/zarvexviewercomponents/Resources/";

/*!
 * Number of UTF-16 units taken by the last character of text if that
 * character is a decimal digit (Unicode category Nd, outside the BMP too),
 * otherwise 0.
 */
int trailingDigitLength(const QString& text)
{
    const int size = text.size();
    if (size == 0)
        return 0;
    const QChar last = text.at(size - 1);
    if (last.isLowSurrogate() && size >= 2 && text.at(size - 2).isHighSurrogate()) {
        const uint codePoint = QChar::surrogateToUcs4(text.at(size - 2), last);
        return QChar::isDigit(codePoint) ? 2 : 0;
    }
    return last.isDigit() ? 1 : 0;
}

/*!
 * "@CameraDevice" gives "CameraDevice_", "StreamGrabber12" "StreamGrabber_":
 * all leading "@" and all trailing decimal digits go, and "_" is appended to
 * what is left. A name of only "@" and digits gives the empty stem.
 */
QString stemOf(const QString& nodeMapName)
{
    QString stem = nodeMapName;
    int leading = 0;
    while (leading < stem.size() && stem.at(leading) == QLatin1Char('@'))
        ++leading;
    stem.remove(0, leading);
    while (const int digitLength = trailingDigitLength(stem))
        stem.chop(digitLength);
    if (!stem.isEmpty())
        stem += QLatin1Char('_');
    return stem;
}

//! Logs a file that opened but is not taken, and so ends the search.
void logParseFailure(const QString& path, const QString& reason, qint64 line, qint64 column)
{
    ZVC_LOGGER.debug("%s: failed to parse file %s: %s (%d, %d)", "createDocument", qUtf8Printable(path),
        qUtf8Printable(reason), int(line), int(column));
}

/*!
 * Looks at the bytes before the DOM parser does and refuses what it would
 * handle badly: a document type declaration (internal entities can expand a
 * small file into gigabytes, and a filter has no use for a DTD) and element
 * nesting beyond MaximumElementDepth (building the DOM takes time that grows
 * with the square of the depth: 100 000 levels, 700 kB, take seconds, and
 * the rest of the code should not have to care about depth at all).
 *
 * Malformed input is not judged here: the parser reads the same bytes with
 * the same tokenizer, stops at the same place and reports it.
 */
bool screenContent(const QByteArray& content, QString* reason, qint64* line, qint64* column)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            *reason = QStringLiteral("document type declarations are not accepted in filter files");
            *line = reader.lineNumber();
            *column = reader.columnNumber();
            return false;
        case QXmlStreamReader::StartElement:
            if (++depth > NodeMapFilter::MaximumElementDepth) {
                *reason = QStringLiteral("elements are nested deeper than %1 levels")
                              .arg(NodeMapFilter::MaximumElementDepth);
                *line = reader.lineNumber();
                *column = reader.columnNumber();
                return false;
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return true;
}

/*!
 * The filter files parsed before, by path, with the bytes each was parsed
 * from. A tree is added for every node map of every camera a viewer opens,
 * and nearly all of them take one of a few filters: parsing one again costs
 * more than building the first levels of a tree. A file whose bytes differ
 * from those kept is parsed again. Only documents that parsed are kept.
 *
 * The documents kept are read, never changed: applyFilter() reads one
 * directly, createDocument() hands its caller a copy.
 */
class ParsedFilters
{
public:
    static ParsedFilters& instance()
    {
        static ParsedFilters filters;
        return filters;
    }

    bool find(const QString& path, const QByteArray& content, QDomDocument* document)
    {
        QMutexLocker locker(&m_mutex);
        const auto entry = m_entries.constFind(path);
        if (entry == m_entries.constEnd() || entry->content != content)
            return false;
        *document = entry->document;
        return true;
    }

    void keep(const QString& path, const QByteArray& content, const QDomDocument& document)
    {
        QMutexLocker locker(&m_mutex);
        // A handful of filters in any real use; the bound only guards
        // against a host that writes a new file for every camera.
        if (m_entries.size() >= MaximumEntries && !m_entries.contains(path))
            m_entries.clear();
        m_entries.insert(path, Entry { content, document });
    }

private:
    static constexpr int MaximumEntries = 16;
    struct Entry
    {
        QByteArray content;
        QDomDocument document;
    };
    QMutex m_mutex;
    QHash<QString, Entry> m_entries;
};

/*!
 * Reads, screens and parses an opened filter file into document, or takes
 * the document parsed before from the same bytes. Closes the file. The
 * document may be shared with the cache: it must not be changed.
 */
bool parseFilterFile(QFile& file, const QString& path, QDomDocument& document)
{
    const QString tooLarge = QStringLiteral("the file is larger than %1 bytes").arg(NodeMapFilter::MaximumFileSize);
    if (file.size() > NodeMapFilter::MaximumFileSize) {
        file.close();
        logParseFailure(path, tooLarge, 0, 0);
        return false;
    }
    // Read one byte more than allowed, in case the file grew after size().
    const QByteArray content = file.read(NodeMapFilter::MaximumFileSize + 1);
    file.close();
    if (content.size() > NodeMapFilter::MaximumFileSize) {
        logParseFailure(path, tooLarge, 0, 0);
        return false;
    }
    if (ParsedFilters::instance().find(path, content, &document))
        return true;

    QString reason;
    qint64 reasonLine = 0;
    qint64 reasonColumn = 0;
    if (!screenContent(content, &reason, &reasonLine, &reasonColumn)) {
        logParseFailure(path, reason, reasonLine, reasonColumn);
        return false;
    }

    // Without namespace processing, as the screening above reads it: an
    // undeclared prefix such as <N:ame/> is just part of a tag's name.
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    QString error;
    int errorLine = 0;
    int errorColumn = 0;
    if (!document.setContent(&reader, false, &error, &errorLine, &errorColumn)) {
        logParseFailure(path, error, errorLine, errorColumn);
        return false;
    }
    ParsedFilters::instance().keep(path, content, document);
    return true;
}

/*!
 * The first element below item, at any depth and in document order, whose
 * tag is exactly tagName; a null element if there is none. Walks the tree
 * without recursion.
 */
QDomElement firstDescendant(const QDomElement& item, const QString& tagName)
{
    QDomNode node = item.firstChild();
    while (!node.isNull()) {
        if (node.isElement()) {
            const QDomElement element = node.toElement();
            if (element.tagName() == tagName)
                return element;
        }
        if (node.hasChildNodes()) {
            node = node.firstChild();
            continue;
        }
        while (node != item && node.nextSibling().isNull())
            node = node.parentNode();
        if (node == item)
            break;
        node = node.nextSibling();
    }
    return QDomElement();
}

enum class ImposedProperty { Visibility, AccessMode };

//! First line of a failed imposition: what failed, with the parameter's name.
void logImposeFailure(const ParameterCollection::IParameter& parameter, ImposedProperty property)
{
    QString name;
    try {
        name = parameter.getName();
    } catch (...) {
        ZVC_LOGGER.warning("Failed to retrieve a node's name");
        return;
    }
    if (property == ImposedProperty::Visibility)
        ZVC_LOGGER.warning("Failed to impose the visibility of node %s", qUtf8Printable(name));
    else
        ZVC_LOGGER.warning("Failed to impose the access mode of node %s", qUtf8Printable(name));
}

/*!
 * setProperty on the parameter's advanced access, with the property's key.
 * A throw is logged in two lines, what failed and why, and gives false.
 */
bool imposeProperty(const ParameterCollection::IParameter& parameter, ImposedProperty property, const QString& value)
{
    const QString key
        = property == ImposedProperty::Visibility ? QStringLiteral("Visibility") : QStringLiteral("AccessMode");
    try {
        const QSharedPointer<ParameterCollection::IAdvancedParameterAccess> access = parameter.advancedAccess();
        if (!access) {
            logImposeFailure(parameter, property);
            ZVC_LOGGER.warning("%s: the parameter offers no advanced access.", "processElement");
            return false;
        }
        access->setProperty(key, value);
        return true;
    } catch (const std::exception& e) {
        logImposeFailure(parameter, property);
        ExceptionLogging::logException("processElement", e);
    } catch (...) {
        logImposeFailure(parameter, property);
        ExceptionLogging::logUnspecifiedException("processElement");
    }
    return false;
}

} // namespace

bool NodeMapFilter::applyFilter(QSharedPointer<ParameterCollection::IParameterCollection> collection,
    QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName)
{
    if (!collection)
        return false;

    QDomDocument document;
    if (!findDocument(document, std::move(info), nodeMapName))
        return false;

    // Every element child is an item, whatever its tag; one bad item never
    // stops the ones behind it.
    const QDomElement root = document.documentElement();
    for (QDomElement item = root.firstChildElement(); !item.isNull(); item = item.nextSiblingElement())
        processElement(item, collection);
    return true;
}

bool NodeMapFilter::createDocument(
    QDomDocument& document, QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName)
{
    QDomDocument shared;
    if (!findDocument(shared, std::move(info), nodeMapName))
        return false;
    // The caller may change its document; the one kept for the next tree must not change.
    document = shared.cloneNode(true).toDocument();
    return true;
}

bool NodeMapFilter::findDocument(
    QDomDocument& document, QSharedPointer<Plugin::CameraPool::IBaseInfo> info, const QString& nodeMapName)
{
    if (!info)
        return false;

    const QString stem = stemOf(nodeMapName);
    const QString suffix = QStringLiteral("Filter.xml");

    // From the most specific name to the least; a name found anywhere beats
    // a less specific one, and a file on disk beats the resource of its name.
    QStringList fileNames;
    fileNames << info->getTLType() + QLatin1Char('_') + stem + suffix;
    if (!stem.isEmpty())
        fileNames << stem + suffix;
    fileNames << QStringLiteral("Default_Filter.xml");

    const QStringList directories {
        QCoreApplication::applicationDirPath() + QLatin1String(BesideApplicationDirectory),
        QLatin1String(ResourceDirectory),
    };

    for (const QString& fileName : qAsConst(fileNames)) {
        for (const QString& directory : directories) {
            const QString path = directory + fileName;
            // A directory, pipe or device of that name is no filter file;
            // opening a pipe would even block until someone writes to it.
            const QFileInfo fileInfo(path);
            if (!fileInfo.isFile())
                continue;
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                continue;
            return parseFilterFile(file, path, document);
        }
    }

    ZVC_LOGGER.debug("Failed to open any of the filter files.");
    return false;
}

bool NodeMapFilter::processElement(
    QDomElement& element, QSharedPointer<ParameterCollection::IParameterCollection> collection)
{
    if (!collection)
        return false;

    const QDomElement nameElement = firstDescendant(element, QStringLiteral("Name"));
    if (nameElement.isNull()) {
        ZVC_LOGGER.debug("%s: failed to get the name of a filter item", "processElement");
        return false;
    }
    const QString name = nameElement.text();
    if (name.isEmpty()) {
        ZVC_LOGGER.debug("%s: empty name found", "processElement");
        return false;
    }

    // Unknown names are skipped without a word, so that one file can serve
    // many cameras and node maps.
    const QSharedPointer<ParameterCollection::IParameter> parameter = collection->getParameter(name);
    if (!parameter)
        return false;
    if (parameter->isZombie() && !parameter->isImposable())
        return false;

    // Visibility first, whatever the order in the file; if it is refused the
    // access mode is left as it was.
    const QDomElement visibility = firstDescendant(element, QStringLiteral("Visibility"));
    if (!visibility.isNull() && !imposeProperty(*parameter, ImposedProperty::Visibility, visibility.text()))
        return false;

    const QDomElement accessMode = firstDescendant(element, QStringLiteral("AccessMode"));
    if (!accessMode.isNull() && !imposeProperty(*parameter, ImposedProperty::AccessMode, accessMode.text()))
        return false;

    return true;
}
