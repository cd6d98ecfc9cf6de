#include "MapCompilerFixture.h"

#include "Files.h"
#include "Records.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneObject.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "tools/mapc/MapCompiler.h"
#include "tools/mapc/MapDump.h"
#include "tools/mapc/ObjectClass.h"
#include "tools/mapc/Texcoords.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <BulletCollision/CollisionShapes/btCompoundShape.h>
#include <BulletDynamics/ConstraintSolver/btGeneric6DofSpringConstraint.h>
#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>
#include <sstream>

// From what the editor writes to what the engine reads.

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

btRigidBody& bodyOf(const SceneBundle& bundle, std::size_t index) {
    return *bundle.objects.at(index)->physicsObject->body;
}

float turnOf(const btRigidBody& body) {
    const btMatrix3x3& basis = body.getWorldTransform().getBasis();
    return std::atan2(basis[1][0], basis[0][0]);
}

GraphicsObjecte& polygonOf(const SceneBundle& bundle, std::size_t index) {
    return dynamic_cast<GraphicsObjecte&>(*bundle.objects.at(index)->graphicsObject);
}

/// Of the first addition of an object.
std::string firstRecordOf(const SceneBundle& bundle, std::size_t index) {
    return recordOf(*bundle.objects[index]->additions.at(0));
}

/// Words alike, and numbers but for rounding. Texture coordinates, which a plain texture does not
/// show, do not count.
void expectSameRecord(SceneObject& first, SceneObject& second) {
    std::array<std::istringstream, 2> records;
    for (SceneObject* object : {&first, &second}) {
        auto& group = static_cast<MultiGraphics&>(*object->graphicsObject);
        for (GraphicsObject* child : group.getChildren()) {
            auto& texcoords = static_cast<GraphicsObjecte&>(*child).getData().texcoords;
            std::fill(texcoords.begin(), texcoords.end(), 0.0F);
        }
        records[object == &first ? 0 : 1].str(recordOf(*object));
    }
    std::string a;
    std::string b;
    while (records[0] >> a) {
        ASSERT_TRUE(records[1] >> b);
        if (a != b) {
            EXPECT_NEAR(std::strtof(a.c_str(), nullptr), std::strtof(b.c_str(), nullptr), 1e-4F)
                << a << ' ' << b;
        }
    }
    EXPECT_FALSE(records[1] >> b);
}

} // namespace

TEST_F(MapCompilerTest, EveryShapeStandsWhereTheEditorShowsIt) {
    const SceneBundle bundle = load(mapOf(
        R"({"id":1,"type":"Wall","x":0,"y":60,"width":200,"height":40},)"
        R"({"id":2,"type":"Crate","x":10,"y":-10,"width":20,"height":20,"rotation":90},)"
        R"({"id":3,"type":"Body","ellipse":true,"x":60,"y":0,"width":30,"height":30},)"
        R"({"id":4,"type":"Body","x":130,"y":40,"polygon":[{"x":0,"y":0},{"x":30,"y":0},{"x":0,"y":-30}])" +
        with({{"mass", 3.5}, {"velocityX", 7.0}, {"friction", 0.25}, {"kind", 3}}) +
        R"(},{"id":5,"type":"Mesh","x":0,"y":100,"polygon":[{"x":0,"y":0},{"x":20,"y":-20},{"x":40,"y":0},{"x":20,"y":-10}]})"));

    ASSERT_EQ(6U, bundle.objects.size());
    const btVector3 wall = bodyOf(bundle, 0).getWorldTransform().getOrigin();
    EXPECT_EQ(btVector3(100, 20, 0), wall) << "y goes up from the map's origin";
    EXPECT_TRUE(bodyOf(bundle, 0).isStaticObject());
    EXPECT_EQ(BOX_2D_SHAPE_PROXYTYPE, bodyOf(bundle, 0).getCollisionShape()->getShapeType());

    const btVector3 crate = bodyOf(bundle, 1).getWorldTransform().getOrigin();
    EXPECT_NEAR(0.0F, crate.x(), 0.001F) << "turned about its corner, clockwise";
    EXPECT_NEAR(100.0F, crate.y(), 0.001F);
    EXPECT_NEAR(-SIMD_HALF_PI, turnOf(bodyOf(bundle, 1)), 0.001F);

    EXPECT_EQ(btVector3(75, 85, 0), bodyOf(bundle, 2).getWorldTransform().getOrigin());

    const btRigidBody& triangle = bodyOf(bundle, 3);
    EXPECT_NEAR(140.0F, triangle.getWorldTransform().getOrigin().x(), 0.01F) << "centre of mass";
    EXPECT_NEAR(70.0F, triangle.getWorldTransform().getOrigin().y(), 0.01F);
    EXPECT_FLOAT_EQ(3.5F, 1.0F / triangle.getInvMass());
    EXPECT_FLOAT_EQ(7.0F, triangle.getLinearVelocity().x());
    EXPECT_FLOAT_EQ(0.25F, triangle.getFriction());
    EXPECT_EQ(3, bundle.objects[3]->physicsObject->kind);

    EXPECT_EQ(4, bundle.objects[4]->graphicsObject->type);
    EXPECT_EQ(12U, polygonOf(bundle, 4).getData().vertices.size()) << "two triangles";
}

TEST_F(MapCompilerTest, PropertiesGiveABodyItsBehaviour) {
    const SceneBundle bundle =
        load(mapOf(R"({"id":1,"type":"Crate","x":0,"y":0,"width":20,"height":20)" +
                   with({{"health", 5},
                         {"damage", 7},
                         {"damageThreshold", 2.5},
                         {"forcePower", -0.5},
                         {"dialog", "180 qq120\r\n\n  60 What was that? "},
                         {"dialogOnce", true},
                         {"script", "TRIGGER -P LOCK TIP 2\r\n\n  STRIGGER KNOWN"}}) +
                   "}"));
    TextWriter stream;
    for (const So_Addition* addition : bundle.objects[0]->additions) {
        addition->save(stream);
    }
    EXPECT_EQ("4 0 1 1 9 0 1 24 2 0 5 0 1 3 5 KNOWN 0 " // a chain a line
              "2 5 1 7 2.5 15 -0.5 0 2 1 0 5 qq120 180 14 What was that? 60 ",
              stream.text());
}

TEST_F(MapCompilerTest, LightsStandByThemselvesOrHangOnBodies) {
    const std::string lamp = R"({"type":"Light","id":)";
    const std::string crate = R"({"id":1,"type":"Crate","x":0,"y":100,"width":20,"height":20,)"
                              R"("rotation":90},)";
    const SceneBundle bundle = load(mapOf(
        crate + lamp + R"(2,"x":90,"y":0,"width":60,"height":60,"ellipse":true)" +
        with({{"colour", "#80ff8000"}, {"flicker", 24}, {"glow", true}}) + "}," + lamp +
        R"(3,"point":true,"x":0,"y":110)" +
        with({{"on", 1}, {"size", 50}, {"shadows", false}, {"texture", "null.tga"}}) + "}," + lamp +
        R"(4,"point":true,"x":-10,"y":100)" + with({{"group", "G"}, {"size", 5}}) +
        R"(},{"id":5,"type":"Body","x":300,"y":0,"width":20,"height":20)" + with({{"group", "G"}}) +
        R"(},{"id":6,"type":"Trigger","x":0,"y":0,"width":9,"height":9})"));

    ASSERT_EQ(5U, bundle.objects.size()) << "a light on a body is no object";
    EXPECT_EQ("16 30 0.501961 0.251965 0 25 1 0 0 0 0 unknown ", firstRecordOf(bundle, 1));
    EXPECT_EQ(0, bundle.objects[1]->physicsObject->kind);
    EXPECT_EQ(btVector3(120, 70, 0), bodyOf(bundle, 1).getWorldTransform().getOrigin());
    const auto& hung = dynamic_cast<LightAdd&>(*bundle.objects[0]->additions.at(0));
    EXPECT_FALSE(hung.getProperties().castsShadows);
    EXPECT_NEAR(0.0F, hung.getProperties().shiftX, 0.001F) << "in the frame of the body";
    EXPECT_NEAR(10.0F, hung.getProperties().shiftY, 0.001F);
    EXPECT_NEAR(10.0F, hung.getProperties().offsetY, 0.001F);
    EXPECT_EQ("16 5 1 1 1 0 1 -320 -90 -320 -90 unknown ", firstRecordOf(bundle, 2));
    EXPECT_EQ(0, polygonOf(bundle, 3).castsShadow) << "areas that are only felt keep no light off";
}

TEST_F(MapCompilerTest, EmittersSprayFromTheirAreaOrFromABody) {
    const std::string spray = R"({"type":"Emitter","id":)";
    const SceneBundle bundle = load(mapOf(
        R"({"id":1,"type":"Crate","x":0,"y":100,"width":20,"height":20},)" + spray +
        R"(2,"x":90,"y":0,"width":60,"height":20)" +
        with({{"colour", "#80ff0000"}, {"life", 50}, {"spread", 90}, {"gravityY", -10}}) + "}," +
        spray + R"(3,"point":true,"x":0,"y":0)" +
        with({{"on", 1}, {"rate", 0.5}, {"additive", true}, {"endColour", "#ff00ff00"}}) + "}"));
    ASSERT_EQ(3U, bundle.objects.size()) << "an emitter on a body is no object";
    EXPECT_EQ("14 6 0.8 unknown 50 1 0 0 0.501961 50 0 1 0 0 0 0 0 -10 0 1.5708 0.2 0 ",
              firstRecordOf(bundle, 1));
    EXPECT_EQ("14 6 0.8 unknown 120 1 1 1 1 120 0 0 1 0 1 0 0 0 0 3.14159 0.5 1 ",
              firstRecordOf(bundle, 0));
    btVector3 least;
    btVector3 most;
    bodyOf(bundle, 1).getAabb(least, most);
    EXPECT_NEAR(60.0F, most.x() - least.x(), 1.0F);
    EXPECT_EQ(0, bundle.objects[1]->physicsObject->kind);
}

TEST_F(MapCompilerTest, ACompoundTurnsAboutItsCentreOfMass) {
    const std::string layer = R"("class":"Compound","properties":[{"name":"mass","value":2.5}],)";
    const std::string parts =
        R"({"id":1,"name":"CART","type":"Body","x":0,"y":100,"width":30,"height":10},)"
        R"({"id":2,"type":"Body","x":30,"y":100,"width":10,"height":30},)"
        R"({"id":3,"type":"Scenery","x":-100,"y":0,"width":10,"height":10})";
    const std::string source = R"({"type":"map","layers":[{"type":"objectgroup","id":7,)" + layer +
                               R"("objects":[)" + parts +
                               R"(]},{"type":"objectgroup","id":8,"objects":[)" + start + "]}]}";
    const SceneBundle bundle = load(source);

    ASSERT_EQ(2U, bundle.objects.size());
    const btRigidBody& cart = bodyOf(bundle, 0);
    EXPECT_FLOAT_EQ(2.5F, 1.0F / cart.getInvMass());
    EXPECT_EQ(btVector3(25, -110, 0), cart.getWorldTransform().getOrigin());
    const auto& shape = dynamic_cast<const btCompoundShape&>(*cart.getCollisionShape());
    ASSERT_EQ(2, shape.getNumChildShapes()) << "scenery in a group is only drawn";
    EXPECT_EQ(btVector3(-10, 5, 0), shape.getChildTransform(0).getOrigin());
    const auto& group = dynamic_cast<MultiGraphics&>(*bundle.objects[0]->graphicsObject);
    EXPECT_EQ(3U, group.getChildren().size());
}

TEST_F(MapCompilerTest, JointsAreToldFromThePositionThatIsDrawn) {
    SceneBundle bundle =
        load(mapOf(R"({"id":1,"type":"Body","x":0,"y":0,"width":100,"height":10,"rotation":30},)"
                   R"({"id":2,"type":"Body","x":300,"y":0,"width":100,"height":40},)"
                   R"({"id":3,"type":"Hinge","point":true,"x":0,"y":0)" +
                   with({{"a", 1}, {"lower", -10.0}, {"upper", 20.0}}) +
                   R"(},{"id":4,"type":"Slider","point":true,"x":350,"y":20)" +
                   with({{"a", 2}, {"left", 10.0}, {"right", 50.0}, {"speedRight", 60.0}}) + "}"));
    ASSERT_EQ(2U, bundle.joints.size());
    const auto& hinge = dynamic_cast<btHingeConstraint&>(*bundle.joints[0]);
    EXPECT_NEAR(btRadians(20), hinge.getLowerLimit(), 0.001F);
    EXPECT_NEAR(btRadians(50), hinge.getUpperLimit(), 0.001F);

    const btRigidBody& plank = bodyOf(bundle, 0);
    const btRigidBody& lift = bodyOf(bundle, 1);
    auto& slider = dynamic_cast<btGeneric6DofSpringConstraint&>(*bundle.joints[1]);
    EXPECT_TRUE(slider.getTranslationalLimitMotor()->m_enableMotor[0]);
    sceneManager().addScene(std::move(bundle));
    step(30);
    EXPECT_NEAR(380.0F, lift.getWorldTransform().getOrigin().x(), 3.0F)
        << "half a second to the right";
    EXPECT_NEAR(80.0F, lift.getWorldTransform().getOrigin().y(), 1.0F) << "and held up";
    step(120);
    EXPECT_NEAR(400.0F, lift.getWorldTransform().getOrigin().x(), 1.0F) << "the limit";
    EXPECT_NEAR(btRadians(-50), turnOf(plank), 0.05F) << "swung down to its limit";
}

TEST_F(MapCompilerTest, ObjectsTakeFromTheirLayersWhatTheyDoNotSay) {
    const SceneBundle bundle = load(
        mapOf(R"({"id":1,"x":0,"y":0,"width":10,"height":10},)"
              R"({"id":2,"x":0,"y":0,"width":10,"height":10)" +
                  with({{"z", -3.0}, {"colour", "#80ff0000"}}) + "}",
              R"("class":"Scenery","parallaxx":0.5,"parallaxy":0.5,"opacity":0.5,"offsetx":8,)"
              R"("properties":[{"name":"z","value":-7},{"name":"texture","value":"haze.tga"}],)"));
    EXPECT_FLOAT_EQ(-7.0F, bundle.objects[0]->graphicsObject->getZ());
    EXPECT_FLOAT_EQ(-3.0F, bundle.objects[1]->graphicsObject->getZ());
    EXPECT_FLOAT_EQ(0.5F, polygonOf(bundle, 0).getParallax());
    EXPECT_FLOAT_EQ(13.0F, polygonOf(bundle, 0).getTransformRef().getOrigin().x());
    EXPECT_NEAR(0.25F, polygonOf(bundle, 1).getData().colours[3], 0.01F);
    EXPECT_FLOAT_EQ(1.0F, polygonOf(bundle, 1).getData().colours[0]);
}

TEST_F(MapCompilerTest, TextureCoordinatesAreThoseOfTheEngine) {
    const mapc::Outline outline{{-30, -10}, {-20, 15}, {25, 5}};
    const mapc::Pose pose{{70, -40}, 0.7F};
    for (const int mode : {0, 1, 2}) {
        GraphicsObjectData data;
        for (const mapc::Point& point : outline) {
            data.vertices.insert(data.vertices.end(), {point.x, point.y});
            data.colours.insert(data.colours.end(), {1, 1, 1, 1});
        }
        data.texcoordMode = mode;
        TransformGraphicsObject object(pose.origin.x, pose.origin.y, data);
        object.getTransformRef().getBasis().setEulerZYX(0, 0, pose.angle);
        object.regenerateTexcoords();

        mapc::Appearance look;
        look.texcoordMode = static_cast<mapc::TexcoordMode>(mode);
        const auto texcoords = mapc::mapTexcoords(outline, pose, look, {1, 1});
        for (std::size_t i = 0; i < outline.size(); ++i) {
            EXPECT_NEAR(object.getData().texcoords[2 * i], texcoords[i].x, 1e-4F) << mode;
            EXPECT_NEAR(object.getData().texcoords[2 * i + 1], texcoords[i].y, 1e-4F) << mode;
        }
    }
}

TEST_F(MapCompilerTest, ARopeHangsInLinksFromTheBodyThatItBeginsIn) {
    const std::string ceiling = R"({"id":1,"type":"Wall","x":0,"y":0,"width":200,"height":40},)";
    const SceneBundle free = load(mapOf(
        ceiling +
        R"({"id":2,"name":"LIA","type":"Rope","x":100,"y":10,"polyline":[{"x":0,"y":0},{"x":0,"y":60},{"x":60,"y":60}])" +
        with({{"linkLength", 30}, {"script", "TRIGGER KNOWN"}}) + "}"));
    // The ceiling, the start, and three links for the length that hangs out of the ceiling.
    ASSERT_EQ(free.objects.size(), 5U);
    ASSERT_EQ(free.joints.size(), 3U);
    const std::size_t chain[] = {0, 2, 3, 4};
    for (std::size_t i = 1; i < 4; ++i) {
        const SceneObject& link = *free.objects[chain[i]];
        EXPECT_TRUE(link.hasName("LIA"));
        EXPECT_EQ(link.physicsObject->kind, 2);
        EXPECT_EQ(link.additions.size(), i == 1 ? 2U : 1U) << "one script a rope";
        auto& hinge = dynamic_cast<btHingeConstraint&>(*free.joints[i - 1]);
        const btRigidBody& below = bodyOf(free, chain[i]);
        const btRigidBody& above = bodyOf(free, chain[i - 1]);
        EXPECT_EQ(&hinge.getRigidBodyA(), &below);
        EXPECT_EQ(&hinge.getRigidBodyB(), &above);
        const btVector3 a = below.getWorldTransform() * hinge.getAFrame().getOrigin();
        const btVector3 b = above.getWorldTransform() * hinge.getBFrame().getOrigin();
        EXPECT_NEAR(a.distance(b), 0.0F, 0.01F);
    }
    EXPECT_NEAR(bodyOf(free, 2).getWorldTransform().getOrigin().y(), 45.0F, 1.0F);
    EXPECT_NEAR(turnOf(bodyOf(free, 4)), SIMD_HALF_PI, 0.1F) << "lies to the right";

    const SceneBundle loaded =
        load(mapOf(ceiling + R"({"id":3,"type":"Crate","x":90,"y":90,"width":20,"height":20},)"
                             R"({"id":2,"type":"Rope","x":96,"y":30,"width":8,"height":70},)"
                             R"({"id":4,"type":"Rope","x":-300,"y":-90,"width":8,"height":70})"));
    std::vector<const btRigidBody*> tied;
    for (const btTypedConstraint* joint : loaded.joints) {
        tied.push_back(&joint->getRigidBodyA());
        tied.push_back(&joint->getRigidBodyB());
    }
    EXPECT_THAT(tied, testing::Contains(&bodyOf(loaded, 1))) << "the crate hangs on it";
    EXPECT_THAT(tied, testing::Contains(&btTypedConstraint::getFixedBody())) << "from mid air";
}

TEST_F(MapCompilerTest, AMonsterIsThatOfTheEngineAndWalksTheWayThatItIsGiven) {
    const std::string way =
        R"(,{"id":2,"type":"Way","x":50,"y":100,"polyline":[{"x":0,"y":0},{"x":90,"y":-40}]})";
    const SceneBundle bundle =
        load(mapOf(R"({"id":1,"type":"Monster","point":true,"x":0,"y":100},)"
                   R"({"id":3,"name":"IT","type":"Monster","point":true,"x":-60,"y":80)" +
                   with({{"state", "patrol"},
                         {"eyesLit", true},
                         {"way", 2},
                         {"speed", 120},
                         {"bite", 12.5},
                         {"armor", 30},
                         {"health", 7},
                         {"script", "KNOWN"}}) +
                   "}" + way));
    ASSERT_EQ(bundle.objects.size(), 3U) << "a way is nothing by itself";

    EvilPlayer made;
    expectSameRecord(*bundle.objects[0], made);
    delete made.graphicsObject;
    delete made.physicsObject;

    EvilPlayer& told = *EvilPlayer::of(bundle.objects[1]);
    EXPECT_EQ(told.state, EvilState::patrol);
    EXPECT_EQ(bodyOf(bundle, 1).getWorldTransform().getOrigin(), btVector3(-60, 20, 0));
    EXPECT_EQ(told.statistics.speed, 120.0F);
    EXPECT_EQ(told.statistics.bite, 12.5F);
    EXPECT_EQ(told.statistics.armor, 30.0F);
    EXPECT_EQ(told.statistics.health, 7);
    EXPECT_TRUE(told.hasName("IT"));
    EXPECT_EQ(told.findAddition(AdditionType::health), nullptr);
    ASSERT_EQ(told.waypoints.size(), 2U);
    EXPECT_EQ(told.waypoints[1].x, 140.0F);
    EXPECT_GT(told.waypoints[1].y, 40.0F) << "over the line that is drawn on the floor";
    EXPECT_LT(told.waypoints[1].y, 50.0F) << "and under the centre of who walks there";
    ASSERT_EQ(told.additions.size(), 6U);
    told.dimEyes();
    EXPECT_EQ(told.additions.size(), 4U) << "its eyes were found in front of the rest";
}

TEST_F(MapCompilerTest, TheEditorOffersEveryClassWithTheValuesItHas) {
    const auto project = nlohmann::json::parse(readFile(TOLMERE_CONTENT "/tolmere.tiled-project"));
    for (const mapc::ObjectClass& row : mapc::objectClasses()) {
        bool offered = false;
        std::map<std::string, nlohmann::json> members;
        for (const auto& type : project["propertyTypes"]) {
            if (type["name"] == row.name) {
                offered = true;
                for (const auto& member : type["members"]) {
                    members[member["name"]] = member["value"];
                }
            }
        }
        ASSERT_TRUE(offered) << row.name;
        const auto thousandths = [](float value) { return std::round(value * 1000.0) / 1000.0; };
        const bool isMonster = row.role == mapc::Role::monster;
        const std::map<std::string, nlohmann::json> values{
            {"texture", row.texture},
            {"texcoordMode", static_cast<int>(row.texcoordMode)},
            {"z", thousandths(row.z)},
            {"damage", 0},
            {"damageThreshold", 0},
            {"forcePower", 0},
            {"health", isMonster ? PlayerStatistics().health : 0},
            {"speed", isMonster ? PlayerStatistics().speed : 0.0F},
            {"jump", PlayerStatistics().jump},
            {"bite", PlayerStatistics().bite},
            {"dialog", ""},
            {"dialogOnce", false},
            {"dialogLocked", false},
            {"mass", row.mass},
            {"friction", thousandths(row.friction)},
            {"restitution", thousandths(row.restitution)}};
        for (const auto& [name, value] : members) {
            if (values.contains(name)) {
                EXPECT_EQ(values.at(name), value) << row.name << " " << name;
            }
        }
    }
}
