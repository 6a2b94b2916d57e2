#pragma once

#include "embedded/EmbeddedBuilding.h"
#include "platform/embedded/HBXProject.h"

namespace hbx::embedded {

/** A beam of two pieces along the x axis, 10 m long, in a project of its own, which is the current one. */
class BeamChainProject : public ::testing::Test
{
protected:
    BeamChainProject()
    {
        project.store().load(emptyHouse());
        project.makeCurrent();
        element = elements().createElement(15, 3, floor(), "KL1");
        head = piece("LINESTRING(0 0, 5000 0)");
        tail = piece("LINESTRING(5000 0, 10000 0)");
        head->linkNext(tail);
    }
    IHBXModel &model() { return *project.service()->model(); }
    IHBXElements &elements() { return *model().elements(); }
    IHBXFloor *floor() { return model().regions()->at(0)->floors()->at(0); }
    IHBXElementDrawObj *piece(const char *axis)
    {
        IHBXElementDrawObj *object = model().drawObjects()->createDrawObj(floor(), element, true);
        model().drawObjects()->addDrawObj(object);
        dynamic_cast<IHBXCustomLineSolidShape *>(object->shape())->setLine(curveOf(axis));
        return object;
    }
    void storeTwoSpans() { ASSERT_TRUE(project.store().setSpans(head, {{{"SpanIndex", 1}}, {{"SpanIndex", 2}}})); }

    HBXProject project;
    IHBXElement *element = nullptr;
    IHBXElementDrawObj *head = nullptr;
    IHBXElementDrawObj *tail = nullptr;
};

} // namespace hbx::embedded
