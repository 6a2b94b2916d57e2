#pragma once

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "slab/SlabModelFixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

/** Slab models written and read, with one document that holds an element of each kind. */
class SlabPersistenceFixture : public SlabModelFixture
{
protected:
    using Service = ORVCADBoardLocalModelPersistenceService_Sample;

    static constexpr int kAll = 254; ///< all bits of parts

    static QJsonObject parsed(const QByteArray &text)
    {
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
        return document.object();
    }
    /** One element of each kind, with a value under each key. */
    static QJsonObject sample()
    {
        QFile file(QStringLiteral(ORVCAD_TEST_DATA "/slab/model.json"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return parsed(file.readAll());
    }
    /** The first object of an array of that document. */
    static QJsonObject sampleObject(const char *array)
    {
        return sample()[QLatin1String(array)].toArray()[0].toObject();
    }
    static QUuid identity(uint number) { return QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0); }

    QJsonObject written(int parts = Service::Everything) const
    {
        return Service::model2json(&model, static_cast<Service::Parts>(parts));
    }
    /** The first object of an array as it is written. */
    QJsonObject writtenObject(const char *array) const
    {
        const QJsonArray all = written()[QLatin1String(array)].toArray();
        EXPECT_FALSE(all.isEmpty()) << array;
        return all.isEmpty() ? QJsonObject() : all[0].toObject();
    }
    /** Reads a document with that one object in an array. */
    void readObject(const char *array, const QJsonObject &object)
    {
        EXPECT_TRUE(Service::json2model({{QLatin1String(array), QJsonArray{object}}}, &model, kAll));
    }
    /** Reads the sample's object of an array with some of its values replaced. */
    void readSampleWith(const char *array, const QJsonObject &replaced)
    {
        QJsonObject object = sampleObject(array);
        for (auto value = replaced.begin(); value != replaced.end(); ++value)
            object.insert(value.key(), value.value());
        readObject(array, object);
    }
    static std::string textOf(const vks::CGeometry *geometry) { return geometry ? geometry->ToText() : "null"; }
};
