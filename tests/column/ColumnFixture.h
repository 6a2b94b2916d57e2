#pragma once

#include "support/HouseFixture.h"

/** A house behind another region. */
class ColumnFixture : public HouseFixture
{
protected:
    void load(const QByteArray &elements, const QByteArray &options = "[]")
    {
        HouseFixture::load(elements, options, R"({"name": "Annex", "floors": []}, )");
    }
};
