// Makes a floor of two slabs and a hole, writes it as the payload of recognition, reads that back, and compares.

#include <ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h>
#include <slab/ORVCADBoardLocalModel_Sample.h>

#include <QJsonDocument>

#include <cstdio>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelPersistenceService_Sample;

/** A part of a model, which owns it. */
template <typename Part> Part &addPart(Model &model, const QString &name, const char *outline)
{
    auto *part = new Part(&model);
    part->name = name;
    part->recongnizedID = QUuid::createUuid();
    part->surface = vks::CPolygon::LoadFromString(outline);
    return *part;
}

void addSlab(Model &model, const QString &name, const char *outline, double thickness, double elevation)
{
    auto &slab = addPart<Model::Board>(model, name, outline);
    slab.thickness = thickness; // mm
    slab.elev = elevation;      // m
}

bool isSame(const Model::Board &one, const Model::Board &other)
{
    return one.name == other.name && one.recongnizedID == other.recongnizedID && one.thickness == other.thickness &&
           one.elev == other.elev && one.surface && other.surface && one.surface->ToText() == other.surface->ToText();
}

bool isSame(const Model &one, const Model &other)
{
    const auto slabs = one.boards();
    const auto others = other.boards();
    if (slabs.size() != others.size() || one.boardHoles().size() != other.boardHoles().size())
        return false;
    for (std::size_t i = 0; i < slabs.size(); ++i)
        if (!isSame(*slabs[i], *others[i]))
            return false;
    return true;
}

} // namespace

int main()
{
    Model model;
    addSlab(model, QStringLiteral("B-h120"), "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))", 120, 3.0);
    addSlab(model, QStringLiteral("B-h100"), "POLYGON((5000 0, 8000 0, 8000 4000, 5000 4000, 5000 0))", 100, 2.95);
    addPart<Model::BoardHole>(model, QStringLiteral("BD1"),
                              "POLYGON((1000 1000, 1800 1000, 1800 1600, 1000 1600, 1000 1000))");

    const QByteArray payload =
        QJsonDocument(Service::model2json(&model, Service::Everything)).toJson(QJsonDocument::Indented);
    std::printf("%s", payload.constData());

    Model readBack;
    Service::json2model(QJsonDocument::fromJson(payload).object(), &readBack, Service::Everything);
    const bool isEqual = isSame(model, readBack);
    std::fprintf(stderr, "%zu slabs and %zu holes read back: %s\n", readBack.boards().size(),
                 readBack.boardHoles().size(), isEqual ? "equal" : "different");
    return isEqual ? 0 : 1;
}
