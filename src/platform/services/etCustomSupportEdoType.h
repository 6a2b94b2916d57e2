#pragma once

/** Kinds of placed objects that a slab can rest on, as the host numbers them. */
enum etCustomSupportEdoType : int { etCustomSupportBeam = 1, etCustomSupportWall = 2, etCustomSupportColumn = 4 };
