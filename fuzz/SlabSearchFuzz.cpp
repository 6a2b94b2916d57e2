// The search among slabs against looking at each one: boxes made of the input's bytes.

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "platform/geometry/CPolygon.h"
#include "slab/BoardLocalModelElements.h"
#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "support/FuzzInput.h"

#include <QJsonArray>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelPersistenceService_Sample;

constexpr std::size_t kBytesOfBox = 4;
constexpr double kReach = 2.0; // mm

/** Corner and size in whole millimetres. */
vks::CBox2<double> boxOf(const std::uint8_t *bytes)
{
    const double x = bytes[0];
    const double y = bytes[1];
    return {{x, y}, {x + bytes[2] + 1.0, y + bytes[3] + 1.0}};
}

QJsonObject boardOf(const vks::CBox2<double> &box)
{
    const QString outline = QStringLiteral("POLYGON((%1 %2, %3 %2, %3 %4, %1 %4, %1 %2))")
                                .arg(box.minPt.x)
                                .arg(box.minPt.y)
                                .arg(box.maxPt.x)
                                .arg(box.maxPt.y);
    return {{QStringLiteral("surface"), outline}};
}

bool isNear(const vks::CBox2<double> &a, const vks::CBox2<double> &b)
{
    return a.minPt.x - b.maxPt.x <= kReach && b.minPt.x - a.maxPt.x <= kReach && a.minPt.y - b.maxPt.y <= kReach &&
           b.minPt.y - a.maxPt.y <= kReach;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < kBytesOfBox)
        return 0;
    QJsonArray boards;
    for (std::size_t at = kBytesOfBox; at + kBytesOfBox <= size; at += kBytesOfBox)
        boards.append(boardOf(boxOf(data + at)));
    Model model;
    Service::json2model({{QStringLiteral("boards"), boards}}, &model, Service::Boards);
    const ORVCADBoardLocalModelSearchService_Sample search(&model, Model::Object::BoardKind);
    const vks::CBox2<double> asked = boxOf(data);
    std::vector<const Model::Object *> expected;
    for (const Model::Board *board : model.boards())
        if (isNear(asked, board->surface->Box()))
            expected.push_back(board);
    const auto found = search.find(asked, Model::Object::BoardKind);
    fuzz::require(std::vector<const Model::Object *>(found.begin(), found.end()) == expected, "the same are found");
    return 0;
}
