#include "Masonry.h"

#include "Shape.h"

namespace {

// Cuts a length into pieces of about the given mean that add up to it.
std::vector<float> cuts(float length, float mean, float unevenness, const Noise& noise, int salt) {
    int count = std::max(1, static_cast<int>(std::lround(length / mean)));
    std::vector<float> ends;
    float sum = 0;
    for (int i = 0; i < count; ++i) {
        sum += 1 + unevenness * (noise.at(i, salt) - 0.5f);
        ends.push_back(sum);
    }
    for (float& end : ends) {
        end *= length / sum;
    }
    return ends;
}

} // namespace

Masonry::Masonry(float w, float h, const Measures& m, const Noise& n)
    : width(w),
      height(h),
      measures(m),
      noise(n) {
    float bottom = 0;
    for (float top : cuts(height, measures.courseHeight, measures.unevenness, noise, -1)) {
        int number = static_cast<int>(courses.size());
        // Every other course starts half a block further, so that joints never stand in a line.
        float start = measures.blockLength * 0.5f *
                      (static_cast<float>(number % 2) + measures.unevenness * noise.at(-1, number));
        Course course{bottom, top, {start}};
        for (float end :
             cuts(width, measures.blockLength, measures.unevenness * 1.3f, noise, number)) {
            course.joints.push_back(start + end);
        }
        courses.push_back(course);
        bottom = top;
    }
}

BlockPlace Masonry::at(float x, float y) const {
    y -= height * std::floor(y / height);
    std::size_t row = 0;
    while (row + 1 < courses.size() && y >= courses[row].top) {
        ++row;
    }
    const Course& course = courses[row];
    x -= width * std::floor((x - course.joints.front()) / width);
    std::size_t block = 1;
    while (block + 1 < course.joints.size() && x >= course.joints[block]) {
        ++block;
    }
    float left = course.joints[block - 1], right = course.joints[block];
    float halfWidth = 0.5f * (right - left), halfHeight = 0.5f * (course.top - course.bottom);
    float dx = x - 0.5f * (left + right), dy = y - 0.5f * (course.bottom + course.top);
    float inset = 0.5f * measures.joint;
    return {shape::box(dx, dy, halfWidth - inset, halfHeight - inset, measures.corner),
            dx / halfWidth, dy / halfHeight,
            noise.at(static_cast<int>(row) + 311, static_cast<int>(block))};
}
