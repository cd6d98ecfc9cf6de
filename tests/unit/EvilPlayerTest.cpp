#include "support/EngineFixture.h"

#include "People.h"
#include "Random.h"
#include "Records.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightReaderAdd.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "soundModule/SoundManager.h"

#include <cmath>

namespace {

constexpr float standing = 10.0F; ///< Height of a monster's centre over the floor.
constexpr std::uint32_t lookPeriod = 20;

/// A wide floor whose top is at 0, with the ears over its middle.
class EvilPlayerTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"zom0", "zom1", "zom2", "zom3", "evildie0", "evildie1", "evildie2", "evildie3",
                     "syk0", "syk1", "syk2", "syk3", "syk4", "lap", "chomp", "heart"});
    }

    void SetUp() override {
        EngineFixture::SetUp();
        addBox(0.0F, -50.0F, 5000.0F, 50.0F, 0.0F);
        graphicsModule().camera->setX(0.0F);
        graphicsModule().camera->setY(0.0F);
        step(); // away from step 0, which would be a look
    }

    static EvilPlayer* addMonster(float x) { return ::addMonster(x, standing); }
    static TestPlayer* addPrey(float x) {
        TestPlayer* prey = addProtagonist(x, 15.0F);
        prey->clearAdditions(); // no fear of its own
        return prey;
    }
    /// Up to and with the next step in which monsters look around.
    void look() {
        while (physicsModule().stepCount % lookPeriod != 0) {
            step();
        }
        step();
    }
    static LightReaderAdd& readerOf(EvilPlayer& monster) {
        return static_cast<LightReaderAdd&>(*monster.findAddition(AdditionType::lightReader));
    }
    static std::size_t lightsOn(const EvilPlayer& monster) {
        std::size_t lights = 0;
        for (const So_Addition* addition : monster.additions) {
            lights += addition->type == AdditionType::light ? 1 : 0;
        }
        return lights;
    }
    static std::uint32_t legs(const EvilPlayer& monster) {
        return monster.keys & (playerKey::left | playerKey::right);
    }
    /// What has begun since the last question, with the digits of sounds by chance as N.
    std::string heard() const { return mixer->takeRunning({"zom", "evildie", "syk"}); }
};

} // namespace

TEST_F(EvilPlayerTest, LightAboveTheMiddleKillsWhateverItsHealth) {
    struct Case {
        int red, green, blue;
        bool survives;
    };
    for (const Case& c : {Case{128, 128, 128, true}, Case{129, 129, 128, true},
                          Case{129, 129, 129, false}, Case{255, 255, 0, false}}) {
        EvilPlayer* monster = addMonster(0.0F);
        monster->statistics.health = 1000000;
        monster->statistics.armor = 100.0F;
        LightReaderAdd& reader = readerOf(*monster);
        reader.red = static_cast<std::uint8_t>(c.red);
        reader.green = static_cast<std::uint8_t>(c.green);
        reader.blue = static_cast<std::uint8_t>(c.blue);
        heard();
        step();
        EXPECT_EQ(sceneManager().contains(monster), c.survives) << c.red << ' ' << c.green;
        if (c.survives) {
            monster->removeAddition(&reader); // what cannot feel light does not die of it
            step();
            EXPECT_TRUE(sceneManager().contains(monster));
            sceneManager().removeSceneObject(monster);
        } else {
            EXPECT_EQ(heard(), "evildieN.wav 127 sykN.wav 127");
        }
    }
    EXPECT_EQ(sceneManager().debrisCount(), 10U) << "bodies, eyes and horns of two";
}

TEST_F(EvilPlayerTest, BitesItsTargetOnTouchAndThenHasAPause) {
    struct Case {
        float bite, armor;
        int left;
    };
    for (const Case& c : {Case{0.0F, 0.0F, 75}, Case{12.7F, 0.0F, 88}, Case{25.0F, 50.0F, 87},
                          Case{1e30F, 100.0F, 100}}) {
        TestPlayer* prey = addPrey(24.0F);
        prey->statistics.armor = c.armor;
        EvilPlayer* monster = addMonster(0.0F);
        monster->state = EvilState::puppet; // stays where it is
        monster->statistics.bite = c.bite;
        step(25);
        EXPECT_EQ(prey->statistics.health, 100) << "nobody's target";
        monster->target = prey;
        heard();
        step();
        EXPECT_EQ(prey->statistics.health, c.left) << c.bite;
        EXPECT_NE(heard().find("chomp.wav"), std::string::npos);
        prey->statistics.health = 100;
        step(20);
        EXPECT_EQ(prey->statistics.health, 100) << "in the pause";
        step();
        EXPECT_EQ(prey->statistics.health, c.left) << c.bite;
        sceneManager().clearScene();
        addBox(0.0F, -50.0F, 5000.0F, 50.0F, 0.0F);
    }
}

TEST_F(EvilPlayerTest, HuntsWhatItSeesAndCalmsDownWhenItIsGone) {
    EvilPlayer* monster = addMonster(0.0F);
    TestPlayer* prey = addPrey(300.0F);
    step(2);
    EXPECT_EQ(monster->target, nullptr) << "looks every twenty steps only";
    heard();
    look();
    ASSERT_EQ(monster->target, prey);
    EXPECT_EQ(lightsOn(*monster), 2U);
    EXPECT_EQ(legs(*monster), playerKey::right);
    EXPECT_EQ(soundManager().heartVolume, 128.0F);
    EXPECT_NE(heard().find("zomN.wav"), std::string::npos);
    put(*prey, -300.0F, 15.0F);
    step();
    EXPECT_EQ(legs(*monster), playerKey::left) << "follows at every step";
    look();
    look();
    EXPECT_LT(originOf(*monster).x(), -50.0F);

    put(*prey, 3000.0F, 15.0F);
    step();
    EXPECT_EQ(monster->target, prey) << "until it looks again";
    look();
    EXPECT_EQ(monster->target, nullptr);
    monster->stopKeys();
    step(200);
    EXPECT_EQ(lightsOn(*monster), 2U);
    step();
    EXPECT_EQ(lightsOn(*monster), 0U) << "calm again";
}

TEST_F(EvilPlayerTest, PreyThatGoesIsForgottenWithoutBeingAskedAnything) {
    EvilPlayer* monster = addMonster(0.0F);
    addPrey(300.0F);
    look();
    sceneManager().removeSceneObject(sceneManager().player);
    // What comes now may lie where the prey lay, and has no body to go to.
    auto* heir = new SceneObject(
        {nullptr, new PhysicsGraphicsObject(makeBoxData(1, 1, -1, 0, 1, 1, 1, 1, 1, 1), nullptr),
         sceneObjectType::withoutPhysics});
    sceneManager().addSceneObject(heir);
    monster->target = heir;
    step(5);
    monster->target = reinterpret_cast<SceneObject*>(std::uintptr_t{16}); // nothing at all
    look();
    EXPECT_EQ(monster->target, nullptr);
}

TEST_F(EvilPlayerTest, WalksItsWaypointsInARingWhichGoesWhereItIsPut) {
    EvilPlayer* monster = addMonster(0.0F);
    monster->statistics.speed = 400.0F;
    monster->waypoints = {{100.0F, 5.0F}, {-100.0F, 5.0F}};
    monster->moveBy(1000.0F, 0.0F);
    int turns = 0;
    std::uint32_t way = 0;
    for (int i = 0; i < 300; ++i) {
        step();
        turns += legs(*monster) != way ? 1 : 0;
        way = legs(*monster);
        EXPECT_EQ(monster->keys & playerKey::up, 0U) << "nothing to jump for";
        EXPECT_NEAR(originOf(*monster).x(), 1000.0F, 115.0F);
    }
    EXPECT_GE(turns, 5);

    // A ring may be cut short at any time; the one place left is where it stands then.
    const float here = originOf(*monster).x();
    monster->waypoints = {{here, 5.0F}, {here + 1000.0F, 5.0F}};
    step(5);
    EXPECT_EQ(legs(*monster), playerKey::right);
    monster->waypoints = {{here, 5.0F}};
    step(100);
    EXPECT_NEAR(originOf(*monster).x(), here, standing);
    EXPECT_EQ(legs(*monster), 0U);
}

TEST_F(EvilPlayerTest, WhoSeesThePreySendsTheOthersThere) {
    for (const bool seerFirst : {true, false}) {
        EvilPlayer* seer = seerFirst ? addMonster(0.0F) : nullptr;
        EvilPlayer* other = addMonster(-300.0F);
        EvilPlayer* puppet = addMonster(-320.0F);
        puppet->state = EvilState::puppet;
        EvilPlayer* busy = addMonster(-340.0F);
        busy->state = EvilState::patrol; // which leaves its target alone
        busy->target = seer = seerFirst ? seer : addMonster(0.0F);
        TestPlayer* prey = addPrey(300.0F);
        look();
        EXPECT_EQ(seer->target, prey);
        EXPECT_EQ(other->target, EvilPlayer::alerted()) << seerFirst;
        EXPECT_EQ(lightsOn(*other), 0U);
        EXPECT_EQ(puppet->target, nullptr);
        EXPECT_EQ(busy->target, seer);
        put(*prey, -2000.0F, 15.0F);
        step(3);
        EXPECT_EQ(legs(*other), playerKey::right) << "to the place, not after the prey";
        look();
        EXPECT_EQ(other->target, nullptr) << "has looked for itself";
        sceneManager().clearScene();
        addBox(0.0F, -50.0F, 5000.0F, 50.0F, 0.0F);
    }
}

TEST_F(EvilPlayerTest, HowlsOnlyWhileThereIsPrey) {
    EvilPlayer* monster = addMonster(0.0F);
    const auto howlsIn = [this, monster](int steps) {
        int howls = 0;
        heard();
        for (int i = 0; i < steps; ++i) {
            monster->update();
            howls += heard().find("zomN") != std::string::npos ? 1 : 0;
        }
        return howls;
    };
    EXPECT_EQ(howlsIn(2000), 0);
    put(*addPrey(0.0F), 300.0F, 15.0F);
    look();
    const int howls = howlsIn(2000);
    EXPECT_GT(howls, 2);
    EXPECT_LT(howls, 25);
    monster->state = EvilState::puppet;
    const std::uint32_t before = randomState;
    EXPECT_EQ(howlsIn(200), 0);
    EXPECT_EQ(randomState, before);
}

TEST_F(EvilPlayerTest, ARecordBringsAHunterBackWithItsEyesOpen) {
    EvilPlayer* monster = addMonster(0.0F);
    monster->waypoints = {{100.0F, 5.0F}, {-100.5F, 5.0F}};
    monster->statistics.speed = 111.0F;
    addPrey(300.0F);
    look();
    const std::string record = recordOf(*monster);
    sceneManager().removeSceneObject(monster);
    TextReader reader(record);
    auto* copy = EvilPlayer::of(readSceneObject(reader));
    ASSERT_NE(copy, nullptr);
    sceneManager().addSceneObject(copy);
    EXPECT_EQ(recordOf(*copy), record);
    EXPECT_EQ(copy->target, nullptr);
    look();
    EXPECT_EQ(copy->target, sceneManager().player);
    EXPECT_EQ(lightsOn(*copy), 2U) << "no third eye";
    copy->dimEyes();
    EXPECT_EQ(lightsOn(*copy), 0U);
    EXPECT_EQ(copy->additions.size(), 2U);
    copy->dimEyes();
    EXPECT_EQ(copy->additions.size(), 2U);
}

TEST_F(EvilPlayerTest, TheUserSteersOneAndCallsThePack) {
    EvilPlayer* leader = addMonster(0.0F);
    sceneManager().player = leader;
    EvilPlayer* follower = addMonster(100.0F);
    EvilPlayer* second = addMonster(150.0F);
    leader->state = follower->state = EvilState::patrol;
    follower->waypoints = {{200.0F, 5.0F}};
    EvilPlayer* puppet = addMonster(-100.0F);
    puppet->state = EvilState::puppet;
    EvilPlayer* distant = addMonster(900.0F);
    step(30);
    inputModule().keyEvent('D', platform::pressed);
    step(10);
    EXPECT_GT(originOf(*leader).x(), 5.0F);
    inputModule().keyEvent('D', platform::released);

    window->setMousePosition(140, 400); // 500 units to the left of the camera
    heard();
    inputModule().mouseEvent(platform::leftMouseButton, platform::pressed);
    const std::string sounds = heard();
    const std::size_t first = sounds.find("zomN");
    const std::size_t answer = sounds.find("zomN", first + 1);
    EXPECT_NE(answer, std::string::npos) << "the leader's and one answer";
    EXPECT_EQ(sounds.find("zomN", answer + 1), std::string::npos);
    EXPECT_TRUE(follower->waypoints.empty());
    for (const EvilPlayer* one : {leader, follower, second, puppet, distant}) {
        const bool hears = one == follower || one == second;
        EXPECT_EQ(one->target, hears ? EvilPlayer::alerted() : nullptr);
        EXPECT_EQ(lightsOn(*one), hears || one == leader ? 2U : 0U);
    }
    inputModule().mouseEvent(platform::leftMouseButton, platform::released);
    step(10);
    EXPECT_EQ(legs(*follower), playerKey::left);
    EXPECT_EQ(legs(*second), playerKey::left);

    leader->dimEyes();
    inputModule().mouseEvent(platform::rightMouseButton, platform::pressed);
    EXPECT_EQ(lightsOn(*leader), 2U);
    inputModule().mouseEvent(platform::rightMouseButton, platform::released);
    EXPECT_EQ(lightsOn(*leader), 0U);
}
