#pragma once

#include "platform/embedded/ExchangeObject.h"
#include "platform/embedded/ExchangeProperties.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QHash>

#include <vector>

namespace hbx::embedded {

/** What is gathered over a whole exchange file. */
struct ExchangeReading
{
    struct KeyUses
    {
        std::size_t drawObj; ///< place among the project's draw objects
        std::vector<KeyUse> uses;
    };

    ProjectRecord project;
    QHash<QString, qint64> idByKey;
    std::vector<KeyUses> keyUses;

    qint64 takeId() { return project.nextId++; }
};

/** Elements and draw objects of one floor. The elements get their ids in file order, then the draw objects in the order
 *  of creation. Throws dwgx::JsonRefusal. */
class ExchangeFloorReader
{
public:
    ExchangeFloorReader(ExchangeReading &reading, const ExchangeObject &json, int floorId)
        : m_reading(reading), m_json(json), m_floorId(floorId)
    {}
    void read();

private:
    struct Unit
    {
        qint64 id;
        qint64 type;
        qint64 subType;
    };
    struct Element
    {
        qint64 id = 0;
        qint64 type = 0;
        qint64 subType = 0;
        QString name;
        std::vector<Unit> units;
        std::vector<std::size_t> placed; ///< by position in drawObjects
    };
    struct Attachment
    {
        qint64 type = 0;
        QString element;
        int position = 0;
    };
    struct Placed
    {
        DrawObjRecord record;
        std::vector<KeyUse> keyUses;
        qint64 order = 0;
        std::size_t element = 0;
        int position = 0;
        int next = -1; ///< position in the same element
        bool isFollowed = false;
        std::optional<std::size_t> owner;
        std::optional<Attachment> attachment;
    };

    void readElement(const QJsonValue &value, const JsonPlace &place);
    qint64 addElement(const ExchangeObject &json, qint64 type, qint64 parentId);
    void checkName(const ExchangeObject &json, const Element &element);
    void readUnit(const QJsonValue &value, const JsonPlace &place, Element &owner);

    static Attachment readAttachment(const ExchangeObject &json);
    void readDrawObject(const QJsonValue &value, const JsonPlace &place, std::size_t elementIndex);
    void readChild(const QJsonValue &value, const JsonPlace &place, std::size_t ownerIndex, std::vector<bool> &taken);
    void readCommon(const ExchangeObject &json, Placed &object, const Unit &definition);
    void readKey(const ExchangeObject &json, DrawObjRecord &record);

    void giveIds();
    void link();
    void linkNext(Placed &object);
    void checkChain(const Placed &object) const;
    void checkRings(const Element &element) const;
    void attach(Placed &object);
    void storeDrawObjs();
    [[noreturn]] void refuse(const Placed &object, QLatin1String member, const QString &reason) const;

    ExchangeReading &m_reading;
    const ExchangeObject &m_json;
    int m_floorId;
    std::vector<Element> m_elements;
    QHash<QPair<qint64, QString>, std::size_t> m_elementByName;
    std::vector<Placed> m_placed;             ///< in file order, children behind their owner
    std::vector<std::size_t> m_creationOrder; ///< places in m_placed
};

} // namespace hbx::embedded
