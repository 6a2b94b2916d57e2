#pragma once

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace orvcad {

/** What a drawing-set file holds, put together by drawing, by floor and by element type. */
class DrawingSetInfo
{
public:
    /** @param set  a sound drawing-set file, see drawingSetFault() */
    explicit DrawingSetInfo(const QJsonObject &set);

    /** Tables for people. */
    QString text() const;
    /** Their first line: how many stages, drawings and floors. */
    QString headline() const;
    QJsonObject toJson() const;

private:
    struct Stage
    {
        QLatin1String key;
        const char *title;
        const char *entry; ///< what its entries are called
        bool present = false;
        int entries = 0;
    };
    /** A floor that a drawing is matched to. */
    struct Place
    {
        qint64 region = 0;
        QString floor;
    };
    struct Drawing
    {
        QString name;
        QString parent{}; ///< drawing that it was cut out of; empty if it is none of the sub-drawings
        std::vector<Place> places{};
        QStringList types{};
        int tables = 0;
        int layers = 0;
        int objects = 0;
        QJsonValue originScale{}; ///< null where none was taken
        QJsonValue newScale{};
        int crossings = 0; ///< of axes, by which it was located
    };
    struct Floor
    {
        QString name;
        QJsonObject record{}; ///< of the floors document; empty for a floor that drawings alone name
        QStringList drawings{};
    };
    struct TypeLayers
    {
        QString name;
        QSet<QString> drawings{};
        QStringList layerNames{}; ///< each once
        int layers = 0;
        int objects = 0;
    };
    /** Records in the order in which they were first named, found by name. */
    template <typename Record> struct ByName
    {
        std::vector<Record> list;
        QHash<QString, std::size_t> numbers;

        Record &append(const QString &name)
        {
            if (!numbers.contains(name))
                numbers.insert(name, list.size());
            list.push_back({name});
            return list.back();
        }
        /** The first of that name, appended if there is none. */
        Record &of(const QString &name)
        {
            const auto found = numbers.constFind(name);
            return found == numbers.constEnd() ? append(name) : list[*found];
        }
    };

    void takeParts(const QJsonObject &split);
    void takeTables(const QJsonObject &tables);
    void takeFloors(const QJsonObject &document);
    void takePlaces(const QJsonValue &mappings);
    void takeTypes(const QJsonValue &mappings);
    void takeLayers(const QJsonValue &groups);
    void takeScales(const QJsonValue &scales);
    void takeLocations(const QJsonValue &locations);
    /** Notes that a stage has run, and how many entries it has. */
    void note(QLatin1String key, bool present, int entries);

    QStringList stageLines() const;
    QStringList floorLines() const;
    QStringList drawingLines() const;
    QStringList layerLines() const;

    static QJsonObject toJson(const Stage &stage);
    static QJsonObject toJson(const Drawing &drawing);
    static QJsonObject toJson(const Floor &floor);
    static QJsonObject toJson(const TypeLayers &layers);

    QString m_areaName;
    std::vector<Stage> m_stages; ///< in the order in which they run
    ByName<Drawing> m_drawings;
    ByName<Floor> m_floors; ///< those of the floors document first
    ByName<TypeLayers> m_types;
};

} // namespace orvcad
