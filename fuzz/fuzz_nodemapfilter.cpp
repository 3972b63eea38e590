// libFuzzer target over the filter-file parser. Each input is written as the
// most specific filter file of a node map of its own, in the directory beside
// the executable, and goes through NodeMapFilter::applyFilter as a host's
// would: file choice, screening, parsing and the walk over the items, against
// a node map that holds every name it is asked for.
//
// The first character of a name or a text steers the fake node map, so that
// every branch of an item is reachable by a one-byte mutation while the seeds
// (the shipped filters) take the ordinary path: a name starting with "~" is
// unknown, "^" a zombie, "+" an imposable zombie, "%" a parameter without
// advanced access, "=" one whose name can't be fetched; a text starting with
// "!", "?" or "#" makes setProperty throw a std::exception, a
// GenICam::GenericException or an int.
//
// The answer of applyFilter and every setProperty it makes are checked
// against the same bytes read independently, with the stream reader.

#include "featuretree/nodemapfilter.h"
#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace {

//! Every setProperty asked for in the present input, as "name key value", in order.
QStringList imposed;

class FuzzAccess : public ParameterCollection::IAdvancedParameterAccess
{
public:
    explicit FuzzAccess(const QString& name)
        : m_name(name)
    {
    }
    QString getProperty(QString) const override { return QString(); }
    QString getProperty(QString, QString defaultValue) const override { return defaultValue; }
    void setProperty(QString key, QString value) override
    {
        imposed << m_name + QLatin1Char(' ') + key + QLatin1Char(' ') + value;
        if (value.startsWith(QLatin1Char('!')))
            throw std::runtime_error("refused");
        if (value.startsWith(QLatin1Char('?')))
            throw GenICam::GenericException("refused", __FILE__, __LINE__);
        if (value.startsWith(QLatin1Char('#')))
            throw 1;
        m_last = key + value;
    }

private:
    QString m_name;
    QString m_last;
};

class FuzzParameter : public ParameterCollection::IParameter
{
public:
    explicit FuzzParameter(const QString& name)
        : m_name(name)
    {
        if (!name.startsWith(QLatin1Char('%')))
            m_access.reset(new FuzzAccess(name));
    }
    void setValueFromString(QString) override { }
    bool isZombie() const override
    {
        return m_name.startsWith(QLatin1Char('^')) || m_name.startsWith(QLatin1Char('+'));
    }
    bool isWritable() const override { return true; }
    bool isImposable() const override { return m_name.startsWith(QLatin1Char('+')); }
    GenApi::EVisibility getVisibility() const override { return GenApi::Beginner; }
    int getType() const override { return ParameterCollection::TypeInteger; }
    QString getFullName() const override { return m_name; }
    QString getName() const override
    {
        if (m_name.startsWith(QLatin1Char('=')))
            throw std::runtime_error("no name");
        return m_name;
    }
    QSharedPointer<ParameterCollection::IAdvancedParameterAccess> advancedAccess() const override { return m_access; }
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const override { return nullptr; }

private:
    QString m_name;
    QSharedPointer<ParameterCollection::IAdvancedParameterAccess> m_access;
};

class FuzzCollection : public ParameterCollection::IParameterCollection
{
public:
    QSharedPointer<ParameterCollection::IParameter> getParameter(QString fullName) override
    {
        if (fullName.startsWith(QLatin1Char('~')))
            return nullptr;
        return QSharedPointer<FuzzParameter>::create(fullName);
    }
    bool hasParameter(QString) const override { return true; }
    QList<QString> getChildNames(QString, bool, bool) const override { return {}; }
    void refreshAll() override { }
    void poll(qint64) override { }
};

class FuzzBaseInfo : public Plugin::CameraPool::IBaseInfo
{
public:
    QString getTLType() const override { return QStringLiteral("GEV"); }
};

QCoreApplication* application = nullptr;
QString* filterPath = nullptr;
QString* nodeMapName = nullptr;

void silence(QtMsgType, const QMessageLogContext&, const QString&) { }

/*!
 * What the filter should do with these bytes, read on its own with the
 * stream reader rather than a DOM: false when the file is to be refused (too
 * large, a document type declaration, nesting too deep, not well-formed);
 * otherwise true, with the setProperty calls the fake node map should see,
 * in order. An item is an element child of the document element; its name is
 * the text of its first "Name" element at any depth, its visibility and
 * access mode those of its first "Visibility" and "AccessMode" elements. The
 * first character of a name or a text steers the fake node map as above.
 */
bool expectedImpositions(const QByteArray& content, QStringList* expected)
{
    if (content.size() > NodeMapFilter::MaximumFileSize)
        return false;
    struct Item
    {
        bool seen[3] = { false, false, false };
        QString text[3];
    };
    const QString tags[3] = { QStringLiteral("Name"), QStringLiteral("Visibility"), QStringLiteral("AccessMode") };
    QList<Item> items;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    // For each tag, the depth of the element whose text is being gathered; 0 for none.
    int collecting[3] = { 0, 0, 0 };
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return false;
        case QXmlStreamReader::StartElement:
            if (++depth > NodeMapFilter::MaximumElementDepth)
                return false;
            if (depth == 2)
                items.append(Item());
            for (int tag = 0; tag < 3 && depth > 2; ++tag) {
                if (!items.last().seen[tag] && reader.qualifiedName() == tags[tag]) {
                    items.last().seen[tag] = true;
                    collecting[tag] = depth;
                }
            }
            break;
        case QXmlStreamReader::EndElement:
            for (int& tagDepth : collecting)
                if (tagDepth == depth)
                    tagDepth = 0;
            --depth;
            break;
        case QXmlStreamReader::Characters:
            // The DOM keeps no text that is only white space.
            for (int tag = 0; tag < 3; ++tag)
                if (collecting[tag] > 0 && !reader.isWhitespace())
                    items.last().text[tag] += reader.text();
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        return false;
    for (const Item& item : qAsConst(items)) {
        const QString& name = item.text[0];
        if (!item.seen[0] || name.isEmpty() || name.startsWith(QLatin1Char('~')) || name.startsWith(QLatin1Char('^')))
            continue;
        for (int tag = 1; tag < 3; ++tag) {
            if (!item.seen[tag])
                continue;
            if (name.startsWith(QLatin1Char('%')))
                break; // no advanced access: nothing is set, the item ends
            expected->append(name + QLatin1Char(' ') + tags[tag] + QLatin1Char(' ') + item.text[tag]);
            const QString& value = item.text[tag];
            if (value.startsWith(QLatin1Char('!')) || value.startsWith(QLatin1Char('?'))
                || value.startsWith(QLatin1Char('#')))
                break; // refused: the item ends
        }
    }
    return true;
}

void removeFilterFile()
{
    if (filterPath)
        QFile::remove(*filterPath);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Every input logs; formatting is exercised, printing would only slow it down.
    qInstallMessageHandler(silence);
    application = new QCoreApplication(*argc, *argv);

    const QString directory = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/zarvex/viewer/");
    QDir().mkpath(directory);
    // A node map name of this process only, so that parallel jobs don't share a file.
    const QString stem = QStringLiteral("FuzzP%1X").arg(::getpid());
    nodeMapName = new QString(QLatin1Char('@') + stem);
    filterPath = new QString(directory + QStringLiteral("GEV_") + stem + QStringLiteral("_Filter.xml"));
    std::atexit(removeFilterFile);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    {
        // Overwrite, then cut to size: truncating to zero first would make
        // ext4 flush the file to disk on every close, and the fuzzer crawl.
        QFile file(*filterPath);
        if (!file.open(QIODevice::ReadWrite))
            std::abort();
        if (file.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size))
            std::abort();
        if (!file.resize(qint64(size)))
            std::abort();
    }
    imposed.clear();
    const bool applied = NodeMapFilter::applyFilter(
        QSharedPointer<FuzzCollection>::create(), QSharedPointer<FuzzBaseInfo>::create(), *nodeMapName);
    // The filter's answer and what it imposed agree with the file.
    QStringList expected;
    const QByteArray content(reinterpret_cast<const char*>(data), int(size));
    if (applied != expectedImpositions(content, &expected) || imposed != expected)
        std::abort();
    return 0;
}
