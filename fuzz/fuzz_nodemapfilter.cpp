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

#include "featuretree/nodemapfilter.h"
#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace {

class FuzzAccess : public ParameterCollection::IAdvancedParameterAccess
{
public:
    QString getProperty(QString) const override { return QString(); }
    QString getProperty(QString, QString defaultValue) const override { return defaultValue; }
    void setProperty(QString key, QString value) override
    {
        if (value.startsWith(QLatin1Char('!')))
            throw std::runtime_error("refused");
        if (value.startsWith(QLatin1Char('?')))
            throw GenICam::GenericException("refused", __FILE__, __LINE__);
        if (value.startsWith(QLatin1Char('#')))
            throw 1;
        m_last = key + value;
    }

private:
    QString m_last;
};

class FuzzParameter : public ParameterCollection::IParameter
{
public:
    explicit FuzzParameter(const QString& name)
        : m_name(name)
    {
        if (!name.startsWith(QLatin1Char('%')))
            m_access.reset(new FuzzAccess);
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
    NodeMapFilter::applyFilter(
        QSharedPointer<FuzzCollection>::create(), QSharedPointer<FuzzBaseInfo>::create(), *nodeMapName);
    return 0;
}
