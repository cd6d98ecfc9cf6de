#pragma once

#include <LinearMath/btVector3.h>

#include <algorithm>
#include <cmath>

/// The bearing of a direction from straight up, in radians: clockwise, so that it is negative
/// towards the left. 0 for no direction at all.
inline float bearingFromUp(const btVector3& direction) {
    const float length = direction.length();
    if (!(length > 0.0F)) {
        return 0.0F;
    }
    const float angle = std::acos(std::clamp(direction.y() / length, -1.0F, 1.0F));
    return direction.x() < 0.0F ? -angle : angle;
}

/// The same counter-clockwise, as bodies turn: negative towards the right.
inline float angleFromUp(const btVector3& direction) {
    return bearingFromUp({-direction.x(), direction.y(), direction.z()});
}
