#include "FloorFixture.h"

#include "Records.h"
#include "graphicsModule/ParticleEmiter.h"

namespace {

/// A saved game brings back what runs, in the state in which it stood.
class SavedMachines : public FloorFixture {
protected:
    /// Saves the scene, empties it and reads it back; the text must come out the same.
    void saveAndLoad() {
        const std::string text = storedScene();
        sceneManager().clearScene();
        TextReader reader(text);
        sceneManager().addScene(parseScene(reader, false));
        EXPECT_EQ(storedScene(), text);
        floor = sceneManager().objects.at(0);
        runs = 0;
    }
};

TEST_F(SavedMachines, AClockGoesOnWhereItStood) {
    floor->addAddition(parseScript("LOCK DELAY 2 DELAY 50 A DELAY 30"));
    step(21);
    saveAndLoad();
    step(29);
    EXPECT_EQ(runs, 0);
    step();
    EXPECT_EQ(runs, 1);
    saveAndLoad();
    step(100);
    EXPECT_EQ(runs, 0) << "the lock stays closed";
}

TEST_F(SavedMachines, APressedPlateDoesNotFireAgainAndFiresWhenItIsLeft) {
    floor->addAddition(parseScript("STRIGGER A"));
    addBox(0.0F, 20.0F, 10.0F, 10.0F, 1.0F);
    step(30);
    ASSERT_EQ(runs, 1);
    saveAndLoad();
    step(30);
    EXPECT_EQ(runs, 0);
    sceneManager().objects.at(1)->moveBy(0.0F, 500.0F);
    step(2);
    EXPECT_EQ(runs, 1);
}

TEST_F(SavedMachines, AHalfFadedObjectFadesOnFromWhereItStood) {
    floor->addAddition(parseScript("OBSCURED -O A"));
    Player* player = addPlayer(0.0F, 15.0F); // in it by half
    step(20);
    const float alpha = alphaOf(*floor->graphicsObject);
    ASSERT_GT(alpha, 0.5F);
    ASSERT_LT(alpha, 0.9F);
    saveAndLoad();
    EXPECT_NEAR(alphaOf(*floor->graphicsObject), alpha, 1e-5F); // six digits are stored
    player = sceneManager().objects.at(1)->asPlayer();
    ASSERT_NE(player, nullptr);
    player->moveBy(0.0F, 900.0F); // out of sight, but it was seen
    step(10);
    EXPECT_NEAR(alphaOf(*floor->graphicsObject), alpha - 0.1F, 0.001F);
    step(90);
    EXPECT_EQ(alphaOf(*floor->graphicsObject), 0.0F);
    EXPECT_EQ(runs, 0) << "told before the save";
}

TEST_F(SavedMachines, AnEmitterSpraysOnAndWhatIsInFlightIsNotStored) {
    ParticleParams look;
    look.life = 1000.0F;
    look.rate = 1.5F;
    floor->addAddition(new ParticleEmiter(look));
    const auto inFlight = [this] {
        return static_cast<ParticleEmiter&>(*floor->additions.at(0)).getParticles().size();
    };
    step(11);
    ASSERT_EQ(inFlight(), 16U);
    saveAndLoad();
    EXPECT_EQ(inFlight(), 0U);
    step();
    EXPECT_EQ(inFlight(), 1U) << "what was owed is forgotten too";
}

TEST_F(SavedMachines, ADialogThatWasHeardStaysClosed) {
    floor->addAddition(additionOf("0 1 1 0 2 hm 2 ").release());
    Player* player = addPlayer(0.0F, 25.0F);
    player->type = sceneObjectType::testPlayer; // only the protagonist is spoken to
    step(30);
    ASSERT_FALSE(player->isSpeaking());
    player->type = sceneObjectType::player;
    saveAndLoad();
    player = sceneManager().objects.at(1)->asPlayer();
    player->type = sceneObjectType::testPlayer;
    sceneManager().player = player;
    step(5);
    EXPECT_FALSE(player->isSpeaking());
    floor->additions.at(0)->unlock();
    step();
    EXPECT_TRUE(player->isSpeaking());
}

} // namespace
