#include "HealthAdd.h"

#include "TextStream.h"
#include "sceneManager/SceneObject.h"

#include <algorithm>
#include <cstdint>
#include <limits>

HealthAdd::HealthAdd(TextReader& stream) : HealthAdd(stream.read<int>()) {}

void HealthAdd::save(TextWriter& stream) const {
    So_Addition::save(stream);
    stream << value;
}

void HealthAdd::update(SceneObject* owner) {
    if (value < 1 && owner != nullptr) {
        owner->shatter();
    }
}

void HealthAdd::take(int amount) {
    const std::int64_t left = std::int64_t{value} - amount;
    value = static_cast<int>(std::clamp<std::int64_t>(left, std::numeric_limits<int>::min(),
                                                      std::numeric_limits<int>::max()));
}
