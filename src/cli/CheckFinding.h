#pragma once

#include "cli/JsonTree.h"

#include <QJsonObject>
#include <QString>

namespace orvcad {

/** What is to be told of one place of a document. */
struct CheckFinding
{
    /** What becomes of it. */
    enum class Weight {
        Fault,   ///< the document is not of its form
        Ignored, ///< a value that nothing reads
        Dropped, ///< something that the reader leaves out
    };
    /** What it breaks. */
    enum class Rule { Text, Missing, UnknownKey, Type, Value, Range, Size, Pattern, Geometry, Form, Reader };

    Weight weight = Weight::Fault;
    Rule rule = Rule::Form;
    JsonTree::Index node = JsonTree::kNone; ///< the value, or the one that lacks a key
    QString missingKey;                     ///< null for the value itself
    int offset = -1;                        ///< bytes; -1: where the value stands
    QString message;                        ///< to stand behind the place
    QString expected;                       ///< what stands in the form, for people
    QString meant;                          ///< nearest legal name; empty without one
};

/** Keys of one kind of record that are missing in a document, and what they read as. */
struct DefaultedKey
{
    JsonTree::Index first = JsonTree::kNone; ///< record that lacks it
    QString key;
    QString value; ///< as JSON
    int count = 0; ///< of records that lack it
};

} // namespace orvcad
