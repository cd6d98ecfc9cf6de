#include "support/EngineFixture.h"

#include "Failure.h"
#include "Records.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObject.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <BulletDynamics/ConstraintSolver/btGeneric6DofSpringConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

// Records, each with the blank at its end.
const std::string corners =
    "-10 -2 1 1 1 1 0 0 -10 2 1 1 1 1 0 1 10 2 1 1 1 1 1 1 10 -2 1 1 1 1 1 0 ";
const std::string polygon = "8 " + corners + "unknown 1 0.5 ";
const std::string sprite = "1 0 4 0.25 0.25 0 4 10 1 ";
const std::string placed = "1 " + polygon + "0 100 50 1 0 0 1 1 ";
const std::string bound = "2 " + polygon + "0 1 ";
const std::string animated = "2 " + polygon + sprite + "0 ";
const std::string group = "3 2 " + bound + "3 1 " + bound;
const std::string fourParts = "3 4 " + bound + bound + bound + bound;
const std::string mesh = "4 6 0 0 1 1 1 1 0 0 9 0 1 1 1 1 1 0 0 9 1 1 1 1 0 1 unknown 1 0 0 ";
const std::string water = "-20.5 -10 20 10 0.25 0.5 0.75 0.5 2 unknown 1 -0.25 ";

const std::string box = "17 0.5 0 0 10 2 100 50 1 0 0 1 0 0 1 1 0.7 ";
const std::string disc = "8 1 0 2.5 15 200 300 1 0 0 1 10 -5 1 1 0.7 ";
const std::string hull = "4 0.5 0.25 1 3 0 0 10 0 5 10 300 300 0 -1 1 0 0 0 0 2 0.5 ";
const std::string compound =
    "31 0.5 0 3 3 0 0 1 0 0 1 17 10 2 20 0 1 0 0 1 8 5 40 0 0 -1 1 0 4 3 0 0 "
    "4 0 2 4 400 300 1 0 0 1 0 0 1 3 0.7 ";
const std::string swimmer = "8 1 0 1 15 500 300 1 0 0 1 0 0 1 1 0.9 ";
const std::string passable = "17 0.5 0 0 10 2 100 50 1 0 0 1 0 0 0 1 0.7 ";
const std::string noBody = "00000000 ";
const std::string statistics = "250 10 160 100 100 0 25 87 ";

const std::string eye = "16 2.5 1 1 1 0 0 5 5 5 5 unknown ";
/// With open eyes, on its way to the second of two points.
const std::string monster =
    "5 " + group + swimmer + "3 " + eye + eye + "23 " + statistics + "1 1 2 10 -20.5 30 40 1 ";

const std::string worldHinge = "4 3 5 5 -0.5 0.5 1 2 30 -1 ";
const std::string hinge = "4 3 0 0 1 -1 0 4 0 10 ";
const std::string spring = "9 4 1 2 -0.25 0.25 1 3 4 5 6 7 -8 -9 8 9 1 1 2 3 4 1 0.5 0.25 0.125 ";
const std::string worldSpring = "9 -1 1 2 0 0 0 6 6 7 0 0 0 0 0 0 ";

const std::string everyWord =
    "LOCK SOUND a.wav -V 60 -P FADENORMAL DELAY 3 TIP 4 AMBIENT 0.5 UP x DELAYORKEY 4 TRIGGER -P "
    "STRIGGER SETLOCK a UNLOCK REVERSE b LOOKAT c DAMAGE 3 EVILDAMAGE -4 REMOVEJOINTAT d OBSCURED "
    "-O SQUEAK a b CREAK c d MOVSOUND a.wav -V 3 SOUNDSOURCE b.wav VSOUND c.wav -V 4 SCRATCH s "
    "NAME door";

/// A name and all that stands beside chains.
const std::string namedWithAll =
    "7 6 5 named 0 2 1 0 5 qq120 60 10 Who's that 90 1 101 0.5 2 30 15 -0.25 "
    "16 100 1 0.5 0.25 3 1 4 5 6 7 unknown "
    "14 1 2 unknown 3 0.1 0.2 0.3 0.4 5 6 0.5 0.6 0.7 0.8 7 8 9 10 11 0.5 1 ";

std::string chainRecord() {
    const std::unique_ptr<CallbackAdd> chain(parseScript(everyWord));
    return recordOf(*chain);
}

/// A map with every kind of graphics, shape, class and joint, and a chain of every word.
std::string everyRecord() {
    return "12 0 " + placed + noBody + "1 2 30 " +      // 0: scenery with hit points
           "-1 " + group + noBody + "0 " +              // 1
           "0 " + mesh + box + "1 " + chainRecord() +   // 2
           "0 " + animated + disc + "0 " +              // 3
           "0 " + group + hull + namedWithAll +         // 4
           "1 " + bound + swimmer + "0 " + statistics + // 5: a character
           "2 " + bound + compound + "0 2 -7 8 9 10 " + // 6: with marks
           "3 " + bound + passable + "0 0.5 1 " +       // 7: a force field
           "4 " + fourParts + swimmer + "1 23 " + statistics + "412 " + // 8: the protagonist
           "0 5 " + water + sprite + passable + "1 17 3.5 " +           // 9
           "0 6 " + water + "0 " + passable + "1 17 0 " +               // 10: still
           monster +                                                    // 11
           "4 " + worldHinge + hinge + spring + worldSpring + "0.1 0.2 0.3 0  ";
}

std::string save() {
    testing::internal::CaptureStdout(); // joints to the world have their say
    std::string text = storedScene();
    testing::internal::GetCapturedStdout();
    return text;
}

SceneBundle parse(const std::string& text) {
    TextReader reader(text);
    return parseScene(reader, true);
}

std::string failureOf(const std::string& text) {
    return ::failureOf([&text] { parse(text); });
}

/// A stored polygon without vertices, up to its count of modifiers.
const std::string emptyPolygon = "0 unknown 1 0 ";

std::string nestedGroups(int depth) {
    std::string text;
    for (int i = 1; i < depth; ++i) {
        text += "3 1 ";
    }
    return text + "3 0 ";
}

std::string graphicsFailure(const std::string& text) {
    TextReader reader(text);
    return ::failureOf([&reader] { delete readGraphicsObject(reader); });
}

class MapFileTest : public EngineFixture {
protected:
    /// Either raises what a damaged file raises, or gives a scene that runs.
    static void loadOrRefuse(const std::string& text) {
        const std::string reason = ::failureOf([&text] {
            sceneManager().addScene(parse(text));
            testing::internal::CaptureStdout(); // a body may leave the world's bounds
            physicsModule().update();
            graphicsModule().update();
            testing::internal::GetCapturedStdout();
        });
        EXPECT_TRUE(reason.empty() || isCorruption(reason)) << reason;
        sceneManager().clearScene();
    }
};

} // namespace

TEST_F(MapFileTest, EveryRecordComesBackAsItWas) {
    sceneManager().addScene(parse(everyRecord()));
    ASSERT_EQ(sceneManager().objects.size(), 12U);
    ASSERT_EQ(physicsModule().getJoints().size(), 4U);
    EXPECT_EQ(save(), everyRecord());

    const SceneObject* disk = sceneManager().objects[3];
    EXPECT_FLOAT_EQ(1.0F / disk->physicsObject->body->getInvMass(), 2.5F);
    EXPECT_EQ(sceneManager().objects[0]->physicsObject, nullptr);
    EXPECT_FALSE(sceneManager().objects[4]->physicsObject->body->hasContactResponse());
    EXPECT_TRUE(sceneManager().objects[2]->physicsObject->wantsContacts);
    EXPECT_FALSE(disk->physicsObject->wantsContacts);
    EXPECT_EQ(sceneManager().objects[5]->asPlayer()->statistics.health, 87);
    EXPECT_EQ(sceneManager().getSceneObject("named"), sceneManager().objects[4]);

    // The world's own setting wins over the damping that the reader gives a spring.
    const auto* joint =
        dynamic_cast<btGeneric6DofSpringConstraint*>(physicsModule().getJoints().at(2));
    ASSERT_NE(joint, nullptr);
    EXPECT_FLOAT_EQ(joint->getDamping(0), 0.1F);
    EXPECT_FLOAT_EQ(joint->getStiffness(5), 80000.0F);
}

TEST_F(MapFileTest, ARunningSceneIsStoredToAFixedPoint) {
    sceneManager().addScene(parse(everyRecord()));
    testing::internal::CaptureStdout();
    step(20);
    testing::internal::GetCapturedStdout();
    const std::string first = save();
    sceneManager().clearScene();
    sceneManager().addScene(parse(first));
    EXPECT_EQ(save(), first);
}

TEST_F(MapFileTest, ATextThatEndsEarlyIsRefused) {
    const std::string good = everyRecord();
    sceneManager().addScene(parse(good));
    const std::string before = save();
    const int counter = sceneManager().objectCounter;
    const Colour3 ambient = graphicsModule().ambient;
    for (std::size_t length = 0; length + 3 < good.size(); ++length) {
        const std::string reason = failureOf(good.substr(0, length));
        ASSERT_TRUE(isCorruption(reason)) << length << ": " << reason;
    }
    EXPECT_EQ(save(), before);
    EXPECT_EQ(sceneManager().objectCounter, counter);
    EXPECT_EQ(graphicsModule().ambient, ambient);
}

TEST_F(MapFileTest, AnyValueMayBeWrongInAnyPlace) {
    const std::string good = everyRecord();
    for (std::size_t begin = 0; begin < good.size(); begin = good.find(' ', begin) + 1) {
        for (const char* wrong : {"", "-1", "0", "5", "1e38", "4294967295", "word"}) {
            std::string text = good;
            loadOrRefuse(text.replace(begin, good.find(' ', begin) - begin, wrong));
        }
    }
}

TEST_F(MapFileTest, RecordsThatCannotBelongTogetherAreRefused) {
    const std::string body = "0 " + bound + disc + "0 ";
    const std::string scenery = "0 " + placed + noBody + "0 ";
    const std::string end = "0 0 0 0  ";
    const std::string index = "file corrupted: joint body index";
    EXPECT_EQ(failureOf("2 " + body + body + "1 4 0 0 0 0 0 0 1 0 0 " + end), "");
    EXPECT_EQ(failureOf("1 " + body + "1 4 0 0 0 0 0 0 1 0 0 " + end).rfind(index, 0), 0U);
    EXPECT_EQ(failureOf("1 " + body + "1 4 -1 0 0 0 0 0 0 0 0 " + end).rfind(index, 0), 0U);
    EXPECT_EQ(failureOf("1 " + body + "1 4 0 0 0 0 0 0 0 0 0 " + end).rfind(index, 0), 0U);
    EXPECT_EQ(failureOf("1 " + body + "1 9 -1 0 0 0 0 0 -1 0 0 " + end).rfind(index, 0), 0U);
    EXPECT_EQ(failureOf("1 " + scenery + "1 4 0 0 0 0 0 0 -1 " + end).rfind(index, 0), 0U);
    EXPECT_NE(failureOf("1 0 " + placed + noBody + "1 6 1 a 0 " + end), ""); // a name, no body
    EXPECT_NE(failureOf("1 3 " + placed + noBody + "0 0 1 0 " + end), "");   // a field, no body
    EXPECT_NE(failureOf("1 1 " + placed + noBody + "0 " + statistics + "0 " + end), "");
    EXPECT_EQ(failureOf("1 4 " + fourParts + swimmer + "0 " + statistics + "0 0 " + end), "");
    EXPECT_NE(failureOf("1 4 " + fourParts + swimmer + "0 " + statistics + "-1 0 " + end), "");
    EXPECT_NE(failureOf("1 4 " + group + swimmer + "0 " + statistics + "0 0 " + end), "");
    EXPECT_NE(failureOf("1 4 " + bound + swimmer + "0 " + statistics + "0 0 " + end), "");
    const std::string evil = "1 5 " + group + swimmer + "0 " + statistics;
    EXPECT_EQ(failureOf(evil + "0 0 0 0 0 " + end), "");
    EXPECT_EQ(failureOf(evil + "0 7 1 0 0 99 0 " + end), ""); // runs as a puppet, on a cut ring
    EXPECT_NE(failureOf(evil + "0 1 4000000000 0 0 0 0 " + end), "");
    EXPECT_NE(failureOf(evil + "0 1 -1 0 0 0 0 " + end), "");
    EXPECT_NE(failureOf(evil + "2 1 0 0 0 " + end), "");
    EXPECT_NE(failureOf("1 5 " + placed + noBody + "0 " + statistics + "0 1 0 0 0 " + end), "");
    EXPECT_NE(failureOf("1 6 " + bound + disc + "0 0 " + end), ""); // no such class
    EXPECT_EQ(failureOf("1 " + body + "1 7 " + end), "");           // no such joint: none
}

TEST_F(MapFileTest, DamagedGraphicsAndGroupsThatNestTooDeepAreRefused) {
    const std::string damaged[] = {
        "0 0 ",                                            // of a class that is not stored
        "7 0 ",                                            // of no class
        "-1 ",                                             //
        "2 1 5 ",                                          // half a vertex
        "2 4000000000 1 1 ",                               // more than the text can hold
        "3 -1 ",                                           //
        "2 " + emptyPolygon + "1 0 4 0 0 0 0 6 1 1 ",      // a sheet without columns
        "2 " + emptyPolygon + "1 0 4 0 0 2 3 6 1 1 ",      // a flag that is no flag
        "5 -1 -1 nan 1 1 1 1 1 1 unknown 1 0 0 ",          //
        "5 -9e5 -1 9e5 1 1 1 1 1 1 unknown 1 0 0 ",        // wider than any level
        "6 -1 -1 2e6 1 1 1 1 1 1 unknown 1 0 0 ",          //
        "6 -1 -1 1 1 1 1 1 1 3 unknown 1 0 0 ",            // a mode that is none
        "2 2 1 2 0.1 0.2 nan 0.4 0.5 0.6 unknown 1 0 0 1", // no number
    };
    for (const std::string& text : damaged) {
        EXPECT_TRUE(isCorruption(graphicsFailure(text))) << text;
    }
    EXPECT_EQ(graphicsFailure(nestedGroups(16)), "");
    EXPECT_NE(graphicsFailure(nestedGroups(17)), "");
    EXPECT_NE(graphicsFailure(nestedGroups(100000)), "");
    EXPECT_EQ(graphicsFailure(nestedGroups(16)), "")
        << "a failure must not count as depth for good";
}
