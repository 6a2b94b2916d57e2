#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>

/** Slabs and rafts on their way into the host. */
namespace slabhost {

struct NewSlabElements;
struct SlabTarget;

/** An elevation of the host in metres from a base of the floor: the base word alone within 0.00001 m, else the word, a sign
 *  and the amount in six digits.
 *  @param baseWord  UTF-8 */
ORVCADMODELDATA_EXPORT QString elevationText(const char *baseWord, double metresAboveBase);

/** Writes the new slabs. Those of one name and thickness, in whole mm, share an element; one without a name is called by
 *  its thickness. Elevations are told from the floor's top. */
void writeBoards(const SlabTarget &target, const NewSlabElements &elements);
/** The same for rafts, whose elevations are told from the floor's bottom. */
void writeRafts(const SlabTarget &target, const NewSlabElements &elements);

} // namespace slabhost
