#pragma once

#include "TracedNode.h"

#include <gtest/gtest.h>

#include <memory>

/** Root "r" with the children a, b, c; d and e under a, f under c. */
class TracedTree : public testing::Test
{
protected:
    TracedTree()
    {
        *root << a << b << c;
        *a << d << e;
        *c << f;
        trace.take();
    }
    TracedNode *made(const char *name) { return new TracedNode(trace, name); }
    Names children() const { return namesOf(root->children()); }

    Trace trace;
    std::unique_ptr<TracedNode> root{made("r")};
    TracedNode *a = made("a");
    TracedNode *b = made("b");
    TracedNode *c = made("c");
    TracedNode *d = made("d");
    TracedNode *e = made("e");
    TracedNode *f = made("f");
};
