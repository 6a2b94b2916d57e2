#pragma once

namespace load {

class LoadRunner;

/** The readers of records, each by itself, and the verbs that do nothing but read a document, at two sizes. */
void runReaderSteps(LoadRunner &runner);

} // namespace load
