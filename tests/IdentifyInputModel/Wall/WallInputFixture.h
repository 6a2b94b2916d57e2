#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"
#include "IdentifyInputModel/Wall/WallFixture.h"

#include <QStringList>

/** Input models of both kinds of walls, told apart by their type alone. */
namespace wallinput {

using Brick = ORVCADWallBrickDataInputModel;
using Force = ORVCADWallForceDataInputModel;
using BrickWalls = std::list<ORVCADCloudEntBrickWallStruct>;
using ForceWalls = std::list<ORVCADCloudEntForceWallStruct>;

const auto kType = EORVCADIdentifyType(1);

inline BrickWalls wallsOf(const Brick &model) { return model.getCadEntBrickWallDataInfo(); }
inline ForceWalls wallsOf(const Force &model) { return model.getCadEntForceWallDataInfo(); }
inline void setWalls(Brick &model, BrickWalls walls) { model.setCadEntBrickWallDataInfo(std::move(walls)); }
inline void setWalls(Force &model, ForceWalls walls) { model.setCadEntForceWallDataInfo(std::move(walls)); }
inline QString wallKey(const Brick * /*kind*/) { return "CadEntBrickWallDataInfo"; }
inline QString wallKey(const Force * /*kind*/) { return "CadEntForceWallDataInfo"; }

template <typename Model> using Walls = decltype(wallsOf(std::declval<const Model &>()));

/** Keys of a whole document, sorted. */
template <typename Model> QStringList keys()
{
    return {wallKey(static_cast<Model *>(nullptr)),
            "CadFilterTextEdoDataInfo",
            "CadLayerInfo",
            "CadLineEdoDataInfo",
            "CadTextEdoDataInfo",
            "CurFloorModelAxisLineEntDataInfo",
            "CurFloorModelBrickLineEntDataInfo",
            "CurFloorModelForceLineEntDataInfo",
            "CurFloorModelPointEntDataInfo",
            "DWGXBaseOptions",
            "IdentifyType",
            "ProjectName"};
}

/** One wall, one axis line, a layer with one line, and all names. */
template <typename Model> Model filled()
{
    Model model(kType);
    Walls<Model> walls(1);
    walls.front().entName = L"墙1";
    walls.front().width = 200;
    setWalls(model, walls);
    model.setCurFloorModelAxisLineEntDataInfo(Brick::ModelLines(1));
    model.setCadLineEdoDataInfo(L"PLAN|WALL", Brick::DrawingLines(1));
    model.setCadLayerInfo({{4, L"轴线"}});
    model.setProjectName(L"Tower");
    model.setFloorName(L"F2");
    model.setFloorCode(L"2");
    model.setDrawingName(L"S-01");
    return model;
}

template <typename Model> std::wstring jsonOf(const Model &model)
{
    std::wstring text = L"old";
    model.saveToJson(text);
    return text;
}

template <typename Model> std::wstring xmlOf(const Model &model)
{
    std::wstring text = L"old";
    model.saveToXml(text);
    return text;
}

} // namespace wallinput
