#pragma once

#include <QString>

#include <ostream>

/** How failed comparisons show a text. */
inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
