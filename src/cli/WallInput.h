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

    QString text() const;
    QJsonObject summary() const;

private:
    ORVCADWallDataInputModel &base();

    std::variant<ORVCADWallBrickDataInputModel, ORVCADWallForceDataInputModel> m_model;
    QJsonObject m_summary;
    QStringList m_layers;                             // of the drawing, each once
    std::vector<std::pair<QString, QString>> m_texts; // that hold a "/": layer and text
};

} // namespace orvcad
