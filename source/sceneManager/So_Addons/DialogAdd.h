#pragma once

#include "So_Addition.h"

#include <string>
#include <vector>

/// Makes the protagonist say lines on touching the object: again whenever it has said them all and
/// still touches, or a single time. Needs a physics object.
class DialogAdd : public So_Addition {
public:
    /// Reads what follows the type. The result belongs to the caller; null for a dialog without
    /// entries, which is no addition at all.
    static So_Addition* read(TextReader& stream);

    void save(TextWriter& stream) const override;
    void unlock() override { locked = false; }
    void lock() override { locked = true; }
    void update(SceneObject* owner) override;

private:
    struct Entry {
        std::string text; ///< The line itself, or "qq" and the number of a language line.
        int time;         ///< Steps that it stays.
    };

    DialogAdd() : So_Addition(AdditionType::dialog) {}

    std::vector<Entry> entries;
    bool once = false;   ///< Locks itself when it has begun, and does not wait for silence.
    bool locked = false; ///< Says nothing.
};
