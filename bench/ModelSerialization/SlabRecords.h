#pragma once

#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <vector>

/** The slab document by hand: plain records with all texts ready, put into JSON objects and taken out of them. This is the
 *  floor under the slab service, which has geometry, a tree and properties to care for besides.
 *
 *  Five kinds stand for all: slabs, the three kinds of their bars, and beams. */
class SlabRecords
{
public:
    using Model = ORVCADBoardLocalModel_Sample;

    struct Record
    {
        qint64 id = 0;
        QString recongnizedID;
        QString name;
        QString geometry;
    };
    struct Board : Record
    {
        double thickness = 0.0;
        double elev = 0.0;
        int type = 0;
        QString stateDescript;
    };
    struct Bar : Record
    {
        QString barInfo;
        double refPointX = 0.0;
        double refPointY = 0.0;
        bool refPointValid = false;
        int leftHookLength = 0;
        int rightHookLength = 0;
        int rowNumber = 0;
        QString stateDescript;
    };
    struct ForcedBar : Bar
    {
        double directionX = 0.0;
        double directionY = 0.0;
        int forcedType = 0;
        QString supportPoly;
    };
    struct StraddleBar : Bar
    {
        double directionX = 0.0;
        double directionY = 0.0;
        int labelPosition = 0;
        double leftStretchLength = 0.0;
        double rightStretchLength = 0.0;
        QString distributeBarInfo;
        QString saddleBarlineCount;
        QString supportPolys;
    };
    struct NegativeBar : Bar
    {
        int labelPosition = 0;
        double leftStretchLength = 0.0;
        double rightStretchLength = 0.0;
        QString distributeBarInfo;
        QString saddleBarlineCount;
    };
    struct Beam : Record
    {
        double width = 0.0;
        double distanceToLeft = 0.0;
        int type = 0;
        double startTopElev = 0.0;
        double endTopElev = 0.0;
    };

    SlabRecords() = default;
    /** What a model of these kinds holds. */
    explicit SlabRecords(const Model &model);

    QJsonObject toJson() const;
    void fromJson(const QJsonObject &json);
    /** Adds an element with its geometry for each record, without the other values. */
    void addTo(Model &model) const;

    std::vector<Board> boards;
    std::vector<ForcedBar> forcedBars;
    std::vector<StraddleBar> straddleBars;
    std::vector<NegativeBar> negativeBars;
    std::vector<Beam> beams;
};
