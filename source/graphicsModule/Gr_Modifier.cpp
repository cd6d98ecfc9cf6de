#include "Gr_Modifier.h"

#include "TextStream.h"

void Gr_Modifier::write(TextWriter& stream) const {
    stream << getType();
}
