#pragma once

#include <QtGlobal>

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

class IHBXService;

/** A property of an element type, by the type that has it. */
struct HostContractProperty
{
    qint64 type = 0;
    std::wstring name;
};

/** What the suite has to know of a host beyond its interfaces. The defaults are what every conversion of this system
 *  relies on; a host changes a line only where it keeps a value under another name or as another kind. */
struct HostContractTerms
{
    /** Types that the host can create elements of; units (82, 83) among them. */
    std::vector<qint64> types = {0,  1,  4,  5,  6,  7,  15, 17, 18, 19, 22, 23,  24,   25,   26,
                                 47, 48, 49, 50, 52, 53, 54, 74, 75, 82, 83, 202, 1001, 1002, 1003};
    /** A type number that stands for nothing. */
    qint64 unknownType = 424242;
    /** A name that no object has. */
    std::wstring unknownProperty = L"NoSuchProperty";

    // One property of each kind, without a value in a new object, and that decides no shape.
    HostContractProperty integer = {4, L"OpeningHeight"};
    HostContractProperty number = {15, L"SectionHeight"};
    HostContractProperty text = {15, L"HoopBar"};
    HostContractProperty elevation = {19, L"TopElev"};
    HostContractProperty point = {15, L"InsertPt"};
    HostContractProperty curve = {22, L"CurveData"};
    HostContractProperty polygon = {15, L"SectionPoly"};

    /** False for a host that has no kernel database: the tests of its tables are then skipped. */
    bool hasDatabase = true;
};

/** Gives the hosts that the contract is checked on; a vendor derives one class from it.
 *
 *  Each host stands on the same small building:
 *
 *  | region | floor      | code | bottom m | height m | stands for | foundation | remark |
 *  | ------ | ---------- | ---- | -------- | -------- | ---------- | ---------- | ------ |
 *  | House  | Foundation | 0    | -1.5     | 1.5      | 1 floor    | yes        |        |
 *  | House  | Level 1    | 1    | 0        | 3        | 1 floor    | no         | ground |
 *  | House  | Level 2    | 2    | 3        | 2.8      | 4 floors   | no         |        |
 *  | Annex  | Yard       | 1    | 0.5      | 4        | 1 floor    | no         |        |
 *
 *  Region House and its floor Level 1 are selected. House is empty. Annex holds the two things that no interface makes:
 *  - a column element (25) "K1" with one draw object, whose section has number 7 and kind 2;
 *  - an axis grid element (74) "G1" with one draw object and three axes, each of one line: "1" from (0, 0) to (0, 6000)
 *    and "2" from (4000, 0) to (4000, 6000) in group 0, "A" from (0, 0) to (4000, 0) in group 2.
 *
 *  The kernel database, if the host has one, holds the option table "CADIdentifyOption" with the columns "OptionGroup",
 *  "OptionName", "OptionValue" and three rows: ContractGroup, Colour, red; ContractGroup, Colour, blue; OtherGroup, Text,
 *  a "quoted") value. */
class HostContractFactory
{
public:
    virtual ~HostContractFactory() = default;

    /** A word for the host, letters and digits; it ends the name of each test. */
    virtual const char *name() const = 0;
    /** A host of its own for one test, with the building as told above. Whatever the service needs lives as long as the
     *  pointer. An exception, or null, fails the test that asked. */
    virtual std::shared_ptr<IHBXService> makeHost() const = 0;
    virtual HostContractTerms terms() const { return {}; }
};

/** Writes the factory's name where a test program prints its parameter. */
void PrintTo(const HostContractFactory *factory, std::ostream *out);
