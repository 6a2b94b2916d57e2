#pragma once

#include <QStringList>

namespace load {

/** What this program does as its own child:
 *    nothing                          what a process takes at least
 *    building OBJECTS SEED FILE       writes a building
 *    doors OBJECTS SEED FILE          writes a reply for its floor in the middle
 *    bytes NUMBER BYTES FILE [compact]  writes a record document of that size
 *    read NUMBER FILE                 reads one
 *    crowd NUMBER ENTRIES FILE        writes the reply of a crowded floor
 *    hostile NUMBER ENTRIES FILE      writes a hostile text
 *    number KEYS FILE                 the number at a path of keys in a JSON file, or the length of the list
 *    save PROJECT OTHER               opens a project and saves it as another file
 *  Writers and readers print how many records there are.
 *  @return exit code */
int runWork(const QStringList &arguments);

} // namespace load
