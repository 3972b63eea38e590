/*!
 * \file camerasettings/camerasettings.h
 * CameraSettings: saves a camera's settings to a versioned JSON file, compares
 * a file with the camera and restores it in an order the camera accepts.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include "parameters/iparametercollection.h"

#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPair>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/*!
 * The settings of one camera, taken from and given back to the parameter
 * collections that a host already hands the feature tree.
 *
 * Save. Every feature that is implemented, readable and writable at that
 * moment is saved with its value as the camera's own text; commands,
 * categories and read-only features are left out. A feature that a selector
 * selects is saved once for every entry of the selector, and the selector is
 * set back afterwards. A selector is a parameter whose advanced access answers
 * the property "SelectedFeatures" with the short names of what it selects,
 * separated by commas; a camera that doesn't answer has no selectors.
 *
 * Restore. The values are written in the node map's own order, a selector
 * before what it selects, in passes until a pass changes nothing, so that a
 * flag or mode written early can unlock a feature that refused before. Each
 * value gets an Outcome in the Report, which restoreFinished() also carries.
 * A device that stops answering ends the restore; what wasn't reached is
 * reported as such.
 *
 * Compare. The values of a file that the camera holds differently, which
 * restoreSelected() writes on their own.
 *
 * The file is JSON (toJson(), fromJson()); fromJson() checks the whole text
 * before anything is written, and refuses a malformed, truncated, oversized or
 * otherwise hostile one with a readable error.
 *
 * Everything runs on the caller's thread, synchronously; the parameter layer's
 * exceptions are caught and become outcomes or errors, never rethrown.
 */
class ZVC_EXPORT CameraSettings : public QObject
{
    Q_OBJECT

public:
    //! The version of the file format that toJson() writes and the newest that fromJson() reads.
    static const int FormatVersion = 1;
    //! The text of the file's "format" member.
    static const char* const FormatName;
    //! The largest file fromJson() accepts, in bytes.
    static const int MaximumFileSize = 16 * 1024 * 1024;
    //! The most values a file may hold.
    static const int MaximumValueCount = 200000;
    //! The longest value text a file may hold, in characters.
    static const int MaximumValueLength = 65536;
    //! The most entries of an integer selector that save() walks.
    static const int MaximumSelectorEntries = 256;

    //! One saved value.
    struct ZVC_EXPORT Value
    {
        QString nodeMap; //!< the node map's name, "@CameraDevice"
        QString feature; //!< the feature's short name, "Gain"
        QString selector; //!< the short name of the selector, empty for a value of its own
        QString selectorEntry; //!< the selector's value under which value holds
        QString value; //!< the value as the camera's text

        //! "@CameraDevice/Gain", the full name of the feature.
        QString fullName() const;
        //! "Gain" or "Gain [GainSelector=Red]".
        QString displayName() const;
        //! Same node map, feature, selector and entry (the value is not compared).
        bool sameFeature(const Value& other) const;
        //! All five fields equal.
        bool operator==(const Value& other) const;
    };

    //! The whole content of a settings file.
    struct ZVC_EXPORT Document
    {
        int version = FormatVersion; //!< the format version it was read with or is written in
        QString vendor; //!< the camera's vendor
        QString model; //!< the camera's model
        QString serialNumber; //!< the camera's serial number
        QString transportLayerType; //!< "GEV", "U3V", ...; may be empty
        QDateTime saved; //!< when the settings were taken, UTC
        QList<Value> values; //!< in the order in which they were saved
    };

    //! What became of one value of a restore.
    enum Outcome : int {
        Written = 0, //!< the camera took the value
        AlreadyEqual = 1, //!< the camera already held it
        Refused = 2, //!< the camera refused the write; the message is its own
        NotPresent = 3, //!< this camera hasn't got the feature, its selector or the selector's entry
        Locked = 4, //!< the feature is not writable now, and no pass unlocked it
        NotReached = 5 //!< the restore stopped before this value
    };
    Q_ENUM(Outcome)

    //! The outcome of one value.
    struct ZVC_EXPORT ReportEntry
    {
        Value value; //!< the value of the file
        Outcome outcome = NotReached; //!< what became of it
        QString message; //!< the camera's message for Refused, a reason for the others; may be empty
        int pass = 0; //!< the pass, from 1, that gave the outcome; 0 when not reached
    };

    //! The result of restore() and restoreSelected().
    struct ZVC_EXPORT Report
    {
        QList<ReportEntry> entries; //!< one per value asked for, in the file's order
        int passes = 0; //!< passes made
        bool stopped = false; //!< the restore ended early because the camera stopped answering
        QString stopReason; //!< why, when stopped
        bool sameModel = true; //!< the file was saved from a camera of this model
        QString fileModel; //!< the model the file names
        QString cameraModel; //!< the model of this camera, as far as known

        //! The number of entries with the outcome.
        int count(Outcome outcome) const;
        //! True when every entry was written or already equal and nothing stopped the restore.
        bool isComplete() const;
        //! The report as readable lines, one per entry after a summary, for a list or the clipboard.
        QStringList toLines() const;
    };

    //! A value of a file that the camera holds differently.
    struct ZVC_EXPORT Difference
    {
        Value file; //!< the value of the file
        QString cameraValue; //!< the camera's value; empty when not present
        bool presentOnCamera = true; //!< false when the camera hasn't got the feature, selector or entry
    };

    //! A settings object without node maps.
    explicit CameraSettings(QObject* parent = nullptr);
    ~CameraSettings() override;

    /*!
     * Adds a node map under its name ("@CameraDevice"). Names are unique; a
     * second collection of the same name replaces the first. Collections are
     * held, not owned beyond the shared pointer.
     */
    void addParameterCollection(
        const QString& nodeMapName, const QSharedPointer<ParameterCollection::IParameterCollection>& collection);
    //! Forgets every node map.
    void clear();
    //! The names of the node maps, in the order they were added.
    QStringList nodeMapNames() const;

    /*!
     * Names the camera. What is left empty is read, when first needed, from
     * the standard features DeviceVendorName, DeviceModelName and
     * DeviceSerialNumber of the first node map that has them.
     */
    void setCameraIdentity(const QString& vendor, const QString& model, const QString& serialNumber,
        const QString& transportLayerType = QString());
    //! The camera's vendor, as given or read.
    QString vendor() const;
    //! The camera's model, as given or read.
    QString model() const;
    //! The camera's serial number, as given or read.
    QString serialNumber() const;

    /*!
     * Takes the camera's settings. Switches each selector through its entries
     * and sets it back. error, if given, receives a text when no node map
     * answered at all; the document is then empty.
     */
    Document save(QString* error = nullptr);

    //! Writes every value of the document, in passes; emits restoreFinished() with the report.
    Report restore(const Document& document);
    //! Writes only the given values of the document (as compare() returns them); emits restoreFinished().
    Report restoreSelected(const Document& document, const QList<Value>& values);
    //! The values of the document that the camera holds differently, in the document's order.
    QList<Difference> compare(const Document& document);

    //! The document as the file's JSON text.
    static QByteArray toJson(const Document& document);
    /*!
     * Reads and checks a whole file. On failure gives false, leaves document
     * alone and, if error is given, sets a text that tells where and what.
     */
    static bool fromJson(const QByteArray& json, Document* document, QString* error = nullptr);

    //! save() and toJson() into a file; false with error on failure.
    bool saveToFile(const QString& path, QString* error = nullptr);
    //! Reads a file with fromJson(); false with error on failure. Reads at most MaximumFileSize + 1 bytes.
    static bool readFile(const QString& path, Document* document, QString* error = nullptr);

    //! The text of an outcome, translated.
    static QString outcomeText(Outcome outcome);

signals:
    /*!
     * A value of a restore has been tried in the given pass, from 1; done of
     * total in this pass. For a progress display; a slot may call back.
     */
    void restoreProgress(int pass, int done, int total);
    //! A restore has ended, completely or not; report tells what became of each value.
    void restoreFinished(const CameraSettings::Report& report);

private:
    struct Private;
    Private* d;
};

Q_DECLARE_METATYPE(CameraSettings::Report)
