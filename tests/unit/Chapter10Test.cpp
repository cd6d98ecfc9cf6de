#include "FloorFixture.h"

#include "People.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <algorithm>
#include <utility>

// The hunt for the little ones, and the gate that only opens by blows.

namespace {

class OtherSide : public FloorFixture {
protected:
    static SceneObject* personCalled(const std::string& name) {
        SceneObject* found = sceneManager().getSceneObject(name);
        return found != nullptr && found->asPlayer() != nullptr ? found : nullptr;
    }
};

TEST_F(OtherSide, ALittleOneStandsInItsMarkersPlaceCriesOnceRunsAndDiesOfBites) {
    addNamed("LUDZIK", 0, 30, 10, "CH10PERSON1");
    step(3);
    EXPECT_EQ(sceneManager().getSceneObject("LUDZIK"), nullptr);
    SceneObject* person = personCalled("OSOBA1");
    ASSERT_NE(person, nullptr);
    EXPECT_FALSE(person->asPlayer()->isSpeaking());

    EvilPlayer* monster = addMonster(-150, 21, EvilState::puppet);
    const float before = originOf(*person).x();
    step(8);
    EXPECT_EQ(personCalled("ZBIEG1"), person);
    EXPECT_TRUE(person->asPlayer()->isSpeaking());
    EXPECT_GT(originOf(*person).x(), before + 5.0F) << "away from the monster";

    person->asPlayer()->statistics.speed = 0.0F;
    for (int i = 0; i < 120 && personCalled("ZBIEG1") != nullptr; ++i) {
        monster->physicsObject->body->getWorldTransform().setOrigin(originOf(*person) +
                                                                    btVector3(-24.5F, -4, 0));
        step();
    }
    EXPECT_EQ(personCalled("ZBIEG1"), nullptr);
}

TEST_F(OtherSide, EachMonsterBeforeTheGateLiftsItAtEachBlowAndNobodyElseDoes) {
    for (const auto& [monsters, lift] : {std::pair{0, 0.0F}, {1, 3.0F}, {3, 9.0F}}) {
        const SceneObject* gate = addNamed("WROTA", 0, 100, 10, "CH10WROTA2");
        addNamed("WROTADEST", 500, 100);
        addNamed("WROTAUP", 0, 300);
        for (int i = 0; i < monsters; ++i) {
            addMonster(460.0F + 40.0F * static_cast<float>(i), 90, EvilState::puppet)
                ->physicsObject->body->setLinearFactor({0, 0, 0});
        }
        addMonster(700, 90, EvilState::puppet)->physicsObject->body->setLinearFactor({0, 0, 0});
        const float before = originOf(*gate).y();
        step(50);
        EXPECT_NEAR(originOf(*gate).y() - before, lift, 0.01F) << monsters;
        sceneManager().clearScene();
    }
}

} // namespace
