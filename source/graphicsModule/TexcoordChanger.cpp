#include "TexcoordChanger.h"

#include "GraphicsModule.h"
#include "GraphicsObjecte.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"

namespace {

void shift(GraphicsObjecte& object, float du, float dv) {
    std::vector<float>& texcoords = object.getData().texcoords;
    for (std::size_t i = 0; i + 1 < texcoords.size(); i += 2) {
        texcoords[i] += du;
        texcoords[i + 1] += dv;
    }
}

} // namespace

TexcoordChanger::TexcoordChanger(TextReader& stream) {
    stream.setRecord("texture coordinate changer");
    stream >> sheet.rows >> sheet.stepU >> sheet.stepV >> sheet.oneShot >> sheet.columns >>
        sheet.delay >> sheet.frame;
    if (sheet.columns == 0) {
        stream.fail();
    }
}

void TexcoordChanger::apply(GraphicsObjecte& object) {
    const std::uint32_t now = physicsModule().stepCount;
    if (now - lastStep < sheet.delay) {
        return;
    }
    lastStep = now;
    const bool rowEnds = sheet.frame % sheet.columns == 0;
    shift(object, sheet.stepU, rowEnds ? -sheet.stepV : 0.0F);
    if (sheet.frame > sheet.columns * sheet.rows) {
        endSheet(object);
    }
    ++sheet.frame;
}

void TexcoordChanger::endSheet(GraphicsObjecte& object) {
    if (sheet.oneShot) {
        graphicsModule().markDead(&object);
        return;
    }
    shift(object, -static_cast<float>(sheet.rows) * sheet.stepU,
          static_cast<float>(sheet.columns) * sheet.stepV);
    sheet.frame = 1;
}

void TexcoordChanger::write(TextWriter& stream) const {
    Gr_Modifier::write(stream);
    stream << sheet.rows << sheet.stepU << sheet.stepV << sheet.oneShot << sheet.columns
           << sheet.delay << sheet.frame;
}
