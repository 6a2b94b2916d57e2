#pragma once

#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamEntInfo.h"
#include "beam/BeamModelDataInfo.h"
#include "beam/LinkBeamEntInfo.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "support/HouseFixture.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

/** A recorded house, and beams of the local model to be made in it. */
class ReconstructionFixture : public HouseFixture
{
protected:
    ReconstructionFixture() { load(QByteArray()); }

    /** Starts anew with some elements. */
    void load(const QByteArray &elements)
    {
        HouseFixture::load(elements);
        host = std::make_unique<RecordingHost>(*project->service());
        service = std::make_unique<ORVCADBeamLocalModel2HBXService>(host->service());
    }

    /** What a beam with every field says: 300 by 600 with sub-type 3. */
    template <typename Ent = BeamEntInfo> static std::shared_ptr<Ent> beamEnt(qint64 type = 15, qint64 subType = 3)
    {
        auto ent = std::make_shared<Ent>();
        ent->Name = "KL1";
        ent->ElementType = type;
        ent->ElementSubType = subType;
        ent->SectionWidth = 300;
        ent->SectionHeight = 600;
        ent->FloorName = "Level 1";
        ent->RegionName = "House";
        ent->HoopBar = "A8@100/200";
        ent->LimbCount = "2";
        ent->TieBar = "A6@400";
        ent->AxisOffset = 25.5;
        return ent;
    }
    static std::shared_ptr<BeamEntInfo> floorBeam(qint64 type = 15, qint64 subType = 3)
    {
        auto ent = beamEnt(type, subType);
        ent->SpanCount = "2A";
        ent->TopThroughBar = "2C25";
        ent->BottomThroughBar = "4C22";
        ent->SideBar = "4C12";
        ent->Type = 5;
        return ent;
    }
    static std::shared_ptr<LinkBeamEntInfo> linkBeam()
    {
        auto ent = beamEnt<LinkBeamEntInfo>(17, 0);
        ent->TopHoribar = "3C20";
        ent->BottomHoriBar = "3C18";
        ent->SideBarAL = "C10@200";
        return ent;
    }

    /** A straight piece, 1 m long, that begins at x = 1000 times its number. */
    static std::shared_ptr<BeamSegmentInfo> segment(int index)
    {
        auto piece = std::make_shared<BeamSegmentInfo>();
        piece->Index = index;
        piece->WordLine = QStringLiteral("%1,0,%2,0").arg(index * 1000).arg((index + 1) * 1000);
        piece->LineWidth = 300.5;
        piece->AxisOffset = 12.5;
        piece->StartPtTopElev = "3.5";
        piece->EndPtTopElev = "3.25";
        return piece;
    }
    static std::shared_ptr<BeamEdoInfo> chain(const std::vector<int> &indexes, int spanCount = 1)
    {
        auto edo = std::make_shared<BeamEdoInfo>();
        for (int index : indexes)
            edo->segments.push_back(segment(index));
        for (int i = 1; i <= spanCount; ++i) {
            edo->spans.push_back(std::make_shared<BeamSpanInfo>());
            edo->spans.back()->SpanIndex = i;
        }
        return edo;
    }
    static std::shared_ptr<BeamModelDataInfo> beamOf(const std::shared_ptr<BaseBeamEntInfo> &ent,
                                                     const std::vector<std::shared_ptr<BeamEdoInfo>> &edos = {})
    {
        auto beam = std::make_shared<BeamModelDataInfo>();
        beam->elementInfo = ent;
        beam->edoInfos = edos;
        return beam;
    }

    IHBXElement *find(const QString &name = "KL1") const { return HouseFixture::find(name); }
    /** All draw objects but those of units, in the order in which they were made. */
    QList<IHBXElementDrawObj *> placed() const
    {
        QList<IHBXElementDrawObj *> objects;
        for (int i = 0; i < model().drawObjects()->count(); ++i)
            if (IHBXElementDrawObj *object = model().drawObjects()->at(i); !object->parent())
                objects.append(object);
        return objects;
    }
    /** An element that a test puts onto the floor, unrecorded. */
    IHBXElement *newElement(qint64 type, const QString &name = "KL1") const
    {
        return model().elements()->createElement(type, 0, floor(), name);
    }
    /** The same as the recording host gives it. */
    IHBXElement *recorded(const QString &name = "KL1") const
    {
        for (int i = 0; i < host->service()->model()->elements()->count(); ++i) {
            IHBXElement *element = host->service()->model()->elements()->at(i);
            QString own;
            if (element->name(own) == name)
                return element;
        }
        return nullptr;
    }
    static QString text(IHBXProperties *properties, const wchar_t *name)
    {
        QString out;
        return properties->asString(out, std::wstring(name));
    }

    /** Lets the host throw at calls that begin so. */
    template <typename Exception = HBXModelException> void refuse(const QStringList &calls)
    {
        host->beforeCall([calls](const QString &call) {
            for (const QString &refused : calls)
                if (call.startsWith(refused))
                    throw Exception("refused");
        });
    }
    QStringList callsWith(const QString &start) const
    {
        return host->calls().filter(QRegExp("^" + QRegExp::escape(start)));
    }
    /** Calls without the look-ups that stand in front of every reconstruction. */
    QStringList writes() const { return host->calls().filter(QRegExp("^(set|refresh|create|add|link)")); }

    std::unique_ptr<RecordingHost> host;
    std::unique_ptr<ORVCADBeamLocalModel2HBXService> service;
};
