#pragma once

#include "ChapterTable.h"
#include "graphicsModule/ParticleParams.h"

class EvilPlayer;
class ParticleEmiter;
class SceneObject;

// What an intro is played with. The objects belong to the scene; what is asked for when the scene
// has none, or no more, is null.

SceneObject* introBackdrop();
SceneObject* introPartner();
EvilPlayer* introMonster();           ///< The partner, if it is one.
ParticleEmiter* introEmiter();        ///< The backdrop's.
ParticleEmiter* introPartnerEmiter(); ///< The partner's.

/// Puts the objects of the stage into the scene.
void buildStage(const IntroStage& stage);
/// Puts in a second sphere, at the place in world units, whose spray is the given one in dark red
/// and, at its end, in the given tint.
void addCloud(float x, float y, float radius, ParticleParams spray,
              const std::array<float, 4>& endTint);
/// Puts a ghost in as the partner.
void addIntroGhost(float x, float y, bool lit);

/// The spray as an emitter takes it.
ParticleParams particlesOf(const Spray& spray);
