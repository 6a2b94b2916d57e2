#pragma once

#include <QString>

#include <vector>

/** Bars of one kind, as the text that stands on drawings: "2C25", "A8@100/200". */
class TBarTypeObj
{
public:
    TBarTypeObj() = default;
    /** Any text is taken, as it is. */
    explicit TBarTypeObj(const QString &text) : m_text(text) {}

    /** Empty when there are no bars. */
    QString asString() const { return m_text; }

private:
    QString m_text;
};

/** The bars at a support of a beam. */
using TBeamSupportBarInfos = TBarTypeObj;

/** Bars of several kinds, in the order in which they were told. */
using BarTypeObjList = std::vector<TBarTypeObj>;
