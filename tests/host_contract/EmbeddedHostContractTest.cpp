#include "HostContract.h"

#include "platform/embedded/HBXProject.h"

namespace {

using hbx::embedded::HBXProject;

const char kBuilding[] = R"json({
  "format": "hbx-project", "version": 1, "name": "Contract",
  "regions": [
    { "name": "House", "floors": [
      { "name": "Foundation", "code": "0", "bottomElev": -1.5, "height": 1.5, "foundation": true },
      { "name": "Level 1", "code": "1", "bottomElev": 0, "height": 3, "remark": "ground" },
      { "name": "Level 2", "code": "2", "bottomElev": 3, "height": 2.8, "standardFloorCount": 4 } ] },
    { "name": "Annex", "floors": [
      { "name": "Yard", "code": "1", "bottomElev": 0.5, "height": 4, "elements": [
        { "name": "K1", "type": 25, "drawObjects": [
          { "shape": { "kind": "point", "outline": "POLYGON((-200 -200, 200 -200, 200 200, -200 200, -200 -200))",
                       "insertPoint": [0, 0], "angle": 0, "mirror": false },
            "section": { "number": 7, "kind": 2 } } ] },
        { "name": "G1", "type": 74, "drawObjects": [
          { "shape": { "kind": "grid", "outline": "POLYGON((0 0, 4000 0, 4000 6000, 0 6000, 0 0))", "axes": [
              [ { "label": "1", "curve": "LINESTRING(0 0, 0 6000)" },
                { "label": "2", "curve": "LINESTRING(4000 0, 4000 6000)" } ],
              [],
              [ { "label": "A", "curve": "LINESTRING(0 0, 4000 0)" } ],
              [] ] } } ] } ] } ] } ],
  "options": [
    { "group": "ContractGroup", "name": "Colour", "value": "red" },
    { "group": "ContractGroup", "name": "Colour", "value": "blue" },
    { "group": "OtherGroup", "name": "Text", "value": "a \"quoted\") value" } ]
})json";

class EmbeddedHostFactory : public HostContractFactory
{
public:
    const char *name() const override { return "Embedded"; }
    std::shared_ptr<IHBXService> makeHost() const override
    {
        hbx::embedded::ProjectError error;
        const std::shared_ptr<HBXProject> project =
            HBXProject::fromJson(QByteArray(kBuilding), QStringLiteral("contract.json"), error);
        if (!project || !project->setCurrent(QStringLiteral("House"), QStringLiteral("Level 1")))
            throw std::runtime_error(error.text().toStdString());
        return {project, project->service()};
    }
};

const EmbeddedHostFactory factory;

ORVCAD_INSTANTIATE_HOST_CONTRACT(Embedded, factory);

} // namespace
