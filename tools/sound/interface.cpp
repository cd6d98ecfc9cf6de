// The small sounds of hands, buttons and levers.

#include "Filter.h"
#include "Grains.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

namespace {

Signal tick(float hz, float seconds, Chance chance) {
    Signal signal = strike(material::plate(hz, seconds, 1.2f, 14, chance), 4 * hz, chance);
    Chance grit = chance;
    add(signal, crumb(2.5f * hz, 0.012f, grit), 0, 1.2f);
    return levelled(std::move(signal));
}

// Cloth or skin over something rough.
Signal rustle(float seconds, float hz, const Curve& strength, Chance chance) {
    Signal grains = cloud(seconds, 900, chance, [&](float) {
        return crumb(hz * chance.between(0.5f, 1.8f), chance.between(0.002f, 0.008f), chance);
    });
    return levelled(shaped(std::move(grains), strength));
}

} // namespace

Signal click(const Take& take) {
    Signal signal = tick(640, 0.05f, take.chance(1));
    add(signal, tick(980, 0.03f, take.chance(2)), 0.028f, 0.5f);
    return inRoom(signal, {0.12f, 0.25f, 3000, 0.25f}, take.side);
}

Signal smallBell(const Take& take) {
    Signal signal = strike(material::bell(1174, 1.7f), 5200, take.chance(1));
    add(signal, strike(material::bar(587, 0.9f, 1), 2500, take.chance(2)), 0.004f, 0.4f);
    add(signal, tick(2100, 0.02f, take.chance(3)), 0, 0.35f);
    return inRoom(signal, {1.2f, 0.8f, 4200, 0.3f}, take.side);
}

/// A hanging plate, tuned: the seed chooses one of five notes that go well with each other.
Signal chime(const Take& take) {
    constexpr float notes[] = {293.7f, 349.2f, 392.0f, 440.0f, 523.3f};
    const float hz = notes[take.seed % std::size(notes)];
    Signal signal = strike(material::bell(hz, 1.5f), 3600, take.chance(1));
    add(signal, strike(material::bar(hz / 2, 1.1f, 1), 1800, take.chance(2)), 0.004f, 0.5f);
    return inRoom(signal, {1.4f, 0.9f, 3600, 0.35f}, take.side);
}

Signal leverOn(const Take& take) {
    Signal signal = tick(310, 0.07f, take.chance(1));
    add(signal, tick(520, 0.16f, take.chance(2)), 0.085f, 1.3f);
    add(signal, strike(material::membrane(120, 0.15f, 1), 400, take.chance(3)), 0.085f, 0.5f);
    return inRoom(signal, {0.5f, 0.5f, 2500, 0.3f}, take.side);
}

Signal leverOff(const Take& take) {
    Signal signal = tick(440, 0.06f, take.chance(1));
    add(signal, tick(230, 0.14f, take.chance(2)), 0.06f, 1.1f);
    add(signal, strike(material::membrane(85, 0.2f, 1), 300, take.chance(3)), 0.06f, 0.8f);
    return inRoom(signal, {0.5f, 0.5f, 1800, 0.3f}, take.side);
}

Signal pickUp(const Take& take) {
    Signal signal = rustle(0.2f, 2600, {{0, 0.2f}, {0.09f, 1}, {0.2f, 0}}, take.chance(1));
    add(signal, tick(420, 0.04f, take.chance(2)), 0.05f, 0.5f);
    return inRoom(signal, {0.3f, 0.4f, 2500, 0.2f}, take.side);
}

Signal putDown(const Take& take) {
    Signal signal = strike(material::membrane(125, 0.13f, 1.2f), 380, take.chance(1));
    add(signal, tick(280, 0.05f, take.chance(2)), 0, 0.5f);
    add(signal, rustle(0.16f, 1500, {{0, 0.6f}, {0.16f, 0}}, take.chance(3)), 0.012f, 0.5f);
    return inRoom(signal, {0.3f, 0.4f, 2000, 0.25f}, take.side);
}
