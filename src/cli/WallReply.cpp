#include "cli/WallReply.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallRecords.h"
#include "IdentifyInputModel/Wall/WallStructsFromHbx.h"
#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/WallReplyCheck.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <list>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Brick = ORVCADCloudEntBrickWallStruct;
using Force = ORVCADCloudEntForceWallStruct;

void load(IHBXElement &element, Brick &record) { loadORVCADCloudEntBrickWallStructFromHbx(&element, &record); }
void load(IHBXElement &element, Force &record) { loadORVCADCloudEntForceWallStructFromHbx(&element, &record); }

void append(ORVCADWallBrickDataOutputModel &output, Brick *record, const IdentifyResultData &piece)
{
    output.setBrickWallIdentifyData(record, piece);
}
void append(ORVCADWallForceDataOutputModel &output, Force *record, const IdentifyResultData &piece)
{
    output.setForceWallIdentifyData(record, piece);
}

constexpr const auto &tableOf(const Brick & /*record*/) { return wall::record::brickWallOfReply; }
constexpr const auto &tableOf(const Force & /*record*/) { return wall::record::forceWallOfReply; }

/** The texts of a record by their keys, before the form cuts any. */
template <typename Record> QJsonObject textsOf(const Record &record)
{
    QJsonObject texts;
    encoding::forEachField(tableOf(record), [&](const auto &row) {
        if constexpr (std::is_same_v<std::decay_t<decltype(record.*row.member)>, std::wstring>)
            texts[row.key] = QString::fromStdWString(record.*row.member);
    });
    return texts;
}

QString placeOf(const IHBXElement &element) { return Message::tr("floor %1").arg(element.floor()->name()); }

/** The pieces of an element of that name, in the host's order; those that are none are left out. */
std::list<IdentifyResultData> piecesOf(IHBXElement &element, double width, std::wstring &name,
                                       std::vector<LeftOut> &leftOut)
{
    QList<IHBXElementDrawObj *> objects;
    element.drawObjs(objects, 0);
    std::list<IdentifyResultData> pieces;
    for (IHBXElementDrawObj *object : qAsConst(objects)) {
        IdentifyResultData piece;
        if (loadORVCADWallEdoIdentifyResStructFromHbx(width, name, object, &piece))
            pieces.push_back(std::move(piece));
        else
            leftOut.push_back({placeOf(element), QString::fromStdWString(name),
                               Message::tr("draw object %1 is no solid along a line").arg(object->id())});
    }
    return pieces;
}

} // namespace

WallReply::WallReply(const HBXProject &project, const WallKind &kind, const std::vector<IHBXFloor *> &floors)
    : m_kind(kind), m_floors(static_cast<int>(floors.size()))
{
    QList<IHBXElement *> elements;
    project.service()->model()->elements()->queryElements(elements, idsOf(floors), {kind.elementType}, true);
    if (kind.isBrick())
        collect<ORVCADWallBrickDataOutputModel, Brick>(elements);
    else
        collect<ORVCADWallForceDataOutputModel, Force>(elements);
}

template <typename Output, typename Record> void WallReply::collect(const QList<IHBXElement *> &elements)
{
    Output output;
    for (IHBXElement *element : elements)
        add<Output, Record>(output, *element);
    QJsonObject walls;
    output.saveToJson(wall::reply::elementsAndEdos, &walls);
    m_document = {{m_kind.reply, walls}};
}

template <typename Output, typename Record> void WallReply::add(Output &output, IHBXElement &element)
{
    auto record = std::make_unique<Record>();
    load(element, *record);
    const QJsonObject texts = textsOf(*record);
    const QString name = QString::fromStdWString(record->entName);
    const QString cut = cutName(texts);
    if (!cut.isEmpty())
        return m_leftOut.push_back({placeOf(element), name, cut});
    const std::list<IdentifyResultData> pieces = piecesOf(element, record->width, record->entName, m_leftOut);
    if (pieces.empty()) {
        ++m_withoutPieces;
        return;
    }
    for (const QString &cutBar : cutBars(texts))
        m_leftOut.push_back({placeOf(element), name, cutBar});
    Record *given = record.release(); // the output model's from the first piece on
    for (const IdentifyResultData &piece : pieces)
        append(output, given, piece);
    ++m_elements;
    m_pieces += static_cast<int>(pieces.size());
}

QString WallReply::headline() const
{
    const QString bare =
        m_withoutPieces ? Message::tr(" (%1 more of which none is placed)").arg(m_withoutPieces) : QString();
    return Message::tr("%1%2 in %3 of %4")
        .arg(counted(m_elements, Message::tr(m_kind.title)), bare, counted(m_pieces, Message::tr("piece")),
             counted(m_floors, Message::tr("floor")));
}

QString WallReply::text() const { return headline() + leftOutLines(m_leftOut); }

QJsonObject WallReply::toJson() const
{
    return {{"kind", m_kind.word},    {"floors", m_floors},
            {"elements", m_elements}, {"withoutPieces", m_withoutPieces},
            {"pieces", m_pieces},     {"leftOut", orvcad::toJson(m_leftOut)}};
}

} // namespace orvcad
