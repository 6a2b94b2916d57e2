#pragma once

#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <memory>
#include <random>

/** Lays bars over the slabs and rafts of a floor, as recognition would find them in a drawing; for tests of whole roads and
 *  for measurements.
 *
 *      SlabBarGenerator generator(7);
 *      generator.layOverSlabs(floor, reply);
 *
 *  The same floor and seed give the same bars, but for their identities, which are fresh each time. The rules:
 *
 *  - A plate (slab or raft) lies along its longest straight edge. Beams and walls that run along or across it, through at
 *    least half of it, cut it into bays. Bays of less than 600 mm are none, nor are those of which the plate covers less
 *    than a quarter.
 *  - A bay has working bars 25 mm inside it, in two layers: along its short side ("Position" 0) and along its long side (1). Every fifth
 *    bay has a second row of other bars in its first layer.
 *  - Over a cut lie top bars, a quarter of the spans to either side, or, over one cut in three, straddling bars over that
 *    area.
 *  - At a side of a plate that another plate lies behind, the first of the two has the same, a quarter of its own span to
 *    either side. At one that has nothing behind but stands on a support, top bars reach a quarter of the span inwards; the
 *    length stands on the right of their line, or on the left and the line runs the other way.
 *  - A raft that nothing cuts has top bars along its middle and, every fourth, straddling bars over its middle third.
 *
 *  Lengths come in steps of 50 mm, and a quarter is at least 350 mm. Some bars tell where they refer to, most leave that to the writer; bar texts are in
 *  either case, hooks differ from end to end. */
class SlabBarGenerator
{
public:
    using Model = ORVCADBoardLocalModel_Sample;

    explicit SlabBarGenerator(unsigned seed) : m_random(seed) {}

    /** @param floor  its slabs, beams and walls count
     *  @param reply  gets the bars, all new; may be the floor itself */
    void layOverSlabs(const Model &floor, Model &reply);
    /** The same for rafts, whose bars are of kinds of their own. */
    void layOverRafts(const Model &floor, Model &reply);

private:
    std::mt19937 m_random;
};
