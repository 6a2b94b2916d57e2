#pragma once

namespace load {

class LoadRunner;
struct EntryText;

/** Texts that mean harm, one for each verb that reads a document: nested without end, one number or text that is the whole
 *  file, millions of empty objects. Each gets a plain answer within seconds: an exit code of the command line's own, and a
 *  line that people can read. */
void runHostileSteps(LoadRunner &runner);

/** One of the texts. */
const EntryText &hostileText(int number);

} // namespace load
