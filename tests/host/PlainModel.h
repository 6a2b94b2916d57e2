#pragma once

#include "platform/host/IHBXModel.h"

/** A model with nothing in it. */
class PlainModel : public IHBXModel
{
public:
    vks::CDatabase *database() override { return nullptr; }
    IHBXRegions *regions() override { return nullptr; }
    IHBXElements *elements() override { return nullptr; }
    IHBXDrawObjs *drawObjects() override { return nullptr; }
    IHBXCheck *checker() override { return nullptr; }
    void beginBatch(const std::string & /*key*/, bool /*on*/) override {}
    void endBatch(const std::string & /*key*/) override {}
    void refresh(int /*mode*/) override {}
};
