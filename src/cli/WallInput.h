#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <utility>
#include <variant>
#include <vector>

class IHBXFloor;

namespace dwgx {
class DWGXModel;
}

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

struct WallKind;

/** What the identification of walls on one floor is told: what stands there, and a drawing of it. */
class WallInput
{
public:
    /** What the document holds. */
    struct Counts
    {
        int walls = 0;      ///< elements of the kind
        int brickLines = 0; ///< placed brick walls
        int forceLines = 0; ///< placed force walls
        int axisLines = 0;
        int columns = 0;
        int layers = 0; ///< of the drawing that have lines or texts
        int lines = 0;  ///< of the drawing
        int texts = 0;  ///< likewise
    };

    /** Reads the floor, which becomes the current one. */
    WallInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor, const WallKind &kind);
    /** Adds the lines and texts of a drawing by layer; what has the colour of its layer gets that of the layer. */
    void addDrawing(const dwgx::DWGXModel &drawing, const QString &name);

    /** Indented UTF-8. */
    QByteArray json() const;
    /** As the text declares: GB2312. */
    QByteArray xml() const;
    /** The document for the cloud, indented UTF-8; only of brick walls, empty for others. */
    QByteArray cloud() const;
    /** Why an XML document does not parse again, by layer and by text: their names become names of attributes. Empty for
     *  one that does. */
    QStringList unreadable(const QByteArray &xml) const;

    /** "1 brick wall element, 1 placed brick wall, … of Level 1; 2 layers with 30 lines and 4 texts". */
    QString text() const;
    QJsonObject summary() const;

private:
    ORVCADWallDataInputModel &base();

    std::variant<ORVCADWallBrickDataInputModel, ORVCADWallForceDataInputModel> m_model;
    const WallKind &m_kind;
    QString m_floorName;
    Counts m_counts;
    QStringList m_layers;                             // of the drawing, each once
    std::vector<std::pair<QString, QString>> m_texts; // that hold a "/": layer and text
};

} // namespace orvcad
