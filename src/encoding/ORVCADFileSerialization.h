#pragma once

#include "ORVCADModelDataExport.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

/** A whole document in memory, written or read record by record: see FlatRecord.h for the records' form.
 *
 *  Despite its name it opens no file: text goes in through the constructor and comes out through content(). An archive
 *  serves one direction only. Writing: make it with the empty text, write, save(), take content(). Reading: make it
 *  with the text, call parse() of the concrete class, and read if that was true.
 *
 *  Nothing is reported: a missing key leaves the output as it is, a value of a wrong kind counts as an empty one. */
class ORVCADMODELDATA_EXPORT ORVCADFileSerialization : public QObject // without a meta-object of its own
{
public:
    /** The text to be read; the empty one where an archive is written. */
    explicit ORVCADFileSerialization(const QString &text);
    ~ORVCADFileSerialization() override;

    /** Puts map keys and, with each, its records under the key. Map keys are records themselves. The map is unchanged. */
    virtual void writeRecordMap(const QString &key, QMap<QString, QStringList> &records) = 0;
    /** Puts the records under the key, in order. */
    virtual void writeRecordList(const QString &key, const QStringList &records) = 0;
    /** Puts one record under the key. */
    virtual void writeRecord(const QString &key, const QString &record) = 0;

    /** Inserts what stands under the key into the map; an entry of the same map key is replaced. */
    virtual void readRecordMap(const QString &key, QMap<QString, QStringList> &records) = 0;
    /** Appends what stands under the key to the list. */
    virtual void readRecordList(const QString &key, QStringList &records) = 0;
    /** Appends the record under the key to the text. A null text stays null when there is no such key, and only then. */
    virtual void readRecord(const QString &key, QString &record) = 0;

    /** Turns what was written into the content. Here the text becomes the content; the concrete classes ignore it. */
    virtual void save(const QString &text);

    /** What the constructor was told, until save() puts the written text in its place. */
    QString content() const { return m_content; }

protected:
    QString m_content; ///< read by parse(), replaced by save()
};
