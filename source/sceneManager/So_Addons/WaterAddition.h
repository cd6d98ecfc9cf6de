#pragma once

#include "So_Addition.h"

#include <cstddef>
#include <vector>

struct Contact;
class Player;
class WaterGraphics;
class btRigidBody;

/// Makes its object a body of water: lifts and slows what is in it, splashes and sounds when
/// something comes or goes, closes the protagonist's ears, and moves the surface. Its object has a
/// static body that answers no contact, and water graphics.
///
/// `waterCount` of an object is the number of waters that hold it. Where waters overlap, the one
/// that an object entered first acts on it; the others count and wait.
class WaterAddition : public So_Addition {
public:
    /// The value is kept and stored, and means nothing.
    explicit WaterAddition(float value) : So_Addition(AdditionType::water), storedValue(value) {}
    /// Reads what follows the type.
    explicit WaterAddition(TextReader& stream);
    /// Takes what it holds for dry.
    ~WaterAddition() override;

    void save(TextWriter& stream) const override;
    void update(SceneObject* owner) override;

private:
    enum class State {
        insideUnseen,      ///< Inside, without a contact in this step so far.
        inside,            ///< The water acts on it.
        overlapping,       ///< Held by another water as well, which acts on it.
        overlappingUnseen, ///< The same, without a contact in this step so far.
    };
    struct Entry {
        SceneObject* object; ///< Not owned; may have died since the last step.
        State state;
    };
    /// What the water is in this step.
    struct Basin {
        const btRigidBody& body;
        WaterGraphics* waves; ///< Null for still water.
        float surface;        ///< Level in the world.
    };

    void forgetContacts();
    void meet(const Basin& basin, const Contact& contact);
    void meetAgain(const Basin& basin, Entry& entry);
    void enter(const Basin& basin, SceneObject& object);
    void letGo(const Basin& basin);
    bool leaves(const Basin& basin, const Entry& entry) const;
    void comeOut(const Basin& basin, SceneObject& object) const;
    Entry* find(const SceneObject* object);

    float storedValue;
    bool justLoaded = true; ///< Nothing splashes in the first step.
    std::vector<Entry> entries;
    std::size_t lastFound = 0; ///< Where the last search ended.
};
