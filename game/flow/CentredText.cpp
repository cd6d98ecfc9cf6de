#include "CentredText.h"

#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputFrame.h"
#include "inputModule/InputModule.h"

InputFrame* openCentredText(const std::string& words, float size) {
    constexpr float widest = 1000.0F;
    InputFrame* frame = makeTextFrame(words, widest, 0.0F, size, 1.0F, 1.0F, 1.0F);
    frame->graphics->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    inputModule().addFrame(frame, (logicalWidth - frame->graphics->getWidth()) * 0.5F,
                           logicalHeight * 0.5F);
    return frame;
}
