// The worked example of docs/objects.md stands here between the two lines of dashes, and there word for word.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QString>

// ---- example
#include "foundation/Log_AI.h"
#include "foundation/Object_AI.h"

/** A slab: its fields are properties too. */
class Slab : public cv::Object_AI
{
public:
    Slab(const QString &name, cv::Object_AI *floor) : cv::Object_AI(name, floor)
    {
        setProperty(
            "thickness", [this] { return Any(thickness); },
            [this](const Any &value) { thickness = value.to<double>(); });
    }
    double thickness = 0.0; // mm
};

/** A floor that keeps count of what comes and goes anywhere below it. */
class Floor : public cv::Object_AI
{
public:
    explicit Floor(const QString &name) : cv::Object_AI(name) {}
    int changes = 0;

protected:
    void event(Event *event) override { changes += event->type == Event::ChildrenChanged ? 1 : 0; }
};

int recognise()
{
    Floor floor("F2");                   // a root belongs to whoever made it
    auto *slab = new Slab("S1", &floor); // a child to its parent
    new Slab("S2", &floor);              // in order of making
    new cv::Object_AI("opening", slab);  // floor.changes is 3 now

    (*slab)["thickness"] = 120; // reaches slab->thickness
    floor.setProperty("concrete", QString("C30"));
    const cv::Object_AI *opening = floor.findChild("opening", FindWholeSubtree);
    const auto concrete = opening->inherited_property("concrete").to<QString>(); // that of the floor

    slab->log("thickness", "no text near the outline", 0.4)->setValue("assumed", 120)->setValue("concrete", concrete);
    slab->raiseLog(); // the log stands under the floor now
    delete slab;      // leaves the floor, and the opening dies with it
    floor.saveLog();  // without this the floor would end the process

    return floor.changes;
}
// ---- end

namespace {

QString textBetween(const char *path, const QString &start, const QString &end)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString("%1 cannot be read").arg(path);
    const QString text = QString::fromUtf8(file.readAll());
    return text.section(start, 1, 1).section(end, 0, 0);
}

TEST(WorkedExampleTest, exampleDoesWhatItSays)
{
    const QDir folder("E:/orv_2018_AI0529/build/bin/Win32/Release/BoardCheckLog");
    const int before = folder.entryList(QDir::Files).size();
    // Three come; the log comes, leaves the slab and goes to the floor; the slab goes; the log goes.
    EXPECT_EQ(recognise(), 8);
    EXPECT_EQ(folder.entryList(QDir::Files).size(), before + 1);
}

TEST(WorkedExampleTest, exampleInTheManualIsThisCode)
{
    const QString here = textBetween(ORVCAD_EXAMPLE, "// ---- example\n", "// ---- end");
    EXPECT_EQ(textBetween(ORVCAD_OBJECTS_PAGE, "```cpp\n", "```").toStdString(), here.toStdString());
    EXPECT_GT(here.size(), 1000);
}

} // namespace
