#include "AdditionFormat.h"

#include "TextStream.h"

#include <algorithm>
#include <array>

namespace mapc {

namespace {

using enum FieldKind;

constexpr std::array nothing = std::to_array<AdditionField>({{"", whole}});
constexpr auto noFields = std::span<const AdditionField>(nothing).first(0);

constexpr auto damageFields =
    std::to_array<AdditionField>({{"damage", whole}, {"threshold", real}});
constexpr auto valueFields = std::to_array<AdditionField>({{"value", whole}});
constexpr auto realFields = std::to_array<AdditionField>({{"value", real}});
constexpr auto numberFields = std::to_array<AdditionField>({{"number", unsignedWhole}});
constexpr auto commandFields =
    std::to_array<AdditionField>({{"name", counted, FieldRole::command}});
constexpr auto nameFields = std::to_array<AdditionField>({{"name", counted}});
constexpr auto targetFields =
    std::to_array<AdditionField>({{"object", counted, FieldRole::object}});
constexpr auto triggerFields =
    std::to_array<AdditionField>({{"fired", flag}, {"playerOnly", flag}});
constexpr auto pressedFields = std::to_array<AdditionField>({{"pressed", flag}});
constexpr auto lockFields = std::to_array<AdditionField>({{"locked", flag}});
constexpr auto obscuredFields = std::to_array<AdditionField>({{"active", flag}, {"once", flag}});
constexpr auto delayFields =
    std::to_array<AdditionField>({{"steps", unsignedWhole}, {"counter", unsignedWhole}});
constexpr auto soundFields =
    std::to_array<AdditionField>({{"file", word, FieldRole::sound}, {"volume", whole}});
constexpr auto twoSoundFields = std::to_array<AdditionField>(
    {{"first", word, FieldRole::sound}, {"second", word, FieldRole::sound}});
constexpr auto emitterFields = std::to_array<AdditionField>({
    {"size", real},     {"z", real},        {"texture", word, FieldRole::texture},
    {"life", real},     {"red", real},      {"green", real},
    {"blue", real},     {"alpha", real},    {"fade", real},
    {"endSize", real},  {"endRed", real},   {"endGreen", real},
    {"endBlue", real},  {"endAlpha", real}, {"speed", real},
    {"gravityX", real}, {"gravityY", real}, {"spin", real},
    {"spread", real},   {"rate", real},     {"additive", whole},
});
constexpr auto lightFields = std::to_array<AdditionField>({
    {"size", real},
    {"red", real},
    {"green", real},
    {"blue", real},
    {"flickerPeriod", whole},
    {"castsShadows", flag},
    {"offsetX", real},
    {"offsetY", real},
    {"shiftX", real},
    {"shiftY", real},
    {"texture", word, FieldRole::texture},
});

constexpr auto formats = std::to_array<AdditionFormat>({
    {1, "DamageAdd", false, damageFields},
    {2, "HealthAdd", false, valueFields},
    {3, "command", true, commandFields},
    {4, "TRIGGER", true, triggerFields},
    {5, "STRIGGER", true, pressedFields},
    {6, "NAME", false, nameFields},
    {7, "UP", true, nameFields},
    {8, "REVERSE", true, targetFields},
    {9, "LOCK", true, lockFields},
    {10, "DELAY", true, delayFields},
    {11, "UNLOCK", true, noFields},
    {12, "MOVSOUND", true, soundFields},
    {13, "SOUNDSOURCE", true, soundFields},
    {14, "ParticleEmiter", false, emitterFields},
    {15, "ForcefieldAdd", false, realFields},
    {16, "LightAdd", false, lightFields},
    {17, "WaterAddition", false, realFields},
    {18, "OBSCURED", true, obscuredFields},
    {19, "SOUND", true, soundFields},
    {20, "SQUEAK", true, twoSoundFields},
    {21, "CREAK", true, twoSoundFields},
    {22, "AMBIENT", true, realFields},
    {23, "LightReaderAdd", false, noFields},
    {24, "TIP", true, numberFields},
    {25, "DELAYORKEY", true, delayFields},
    {26, "VSOUND", true, soundFields},
    {27, "SCRATCH", true, nameFields},
    {28, "LOOKAT", true, targetFields},
    {29, "SETLOCK", true, targetFields},
    {30, "DAMAGE", true, valueFields},
    {31, "EVILDAMAGE", true, valueFields},
    {32, "REMOVEJOINTAT", true, targetFields},
});

constexpr int dialogCode = 0;
constexpr AdditionFormat dialogFormat{dialogCode, "DialogAdd", false, noFields};

std::string readValue(TextReader& stream, FieldKind kind) {
    switch (kind) {
    case counted:
        return readCountedString(stream);
    case whole:
        return std::to_string(stream.read<int>());
    case unsignedWhole:
        return std::to_string(stream.read<unsigned>());
    case flag:
        return stream.read<bool>() ? "1" : "0";
    case real: {
        TextWriter printed;
        printed << stream.read<float>();
        std::string text = printed.takeText();
        text.pop_back();
        return text;
    }
    case word:
        break;
    }
    return stream.read<std::string>();
}

/// The one addition whose record has a list in it.
void visitDialog(TextReader& stream, const AdditionVisitor& visitor) {
    visitor.link(dialogFormat);
    const std::size_t count = stream.readCount();
    visitor.field({"once", flag}, readValue(stream, flag));
    visitor.field({"locked", flag}, readValue(stream, flag));
    for (std::size_t i = 0; i < count; ++i) {
        visitor.field({"text", counted}, readValue(stream, counted));
        visitor.field({"steps", whole}, readValue(stream, whole));
    }
}

} // namespace

const AdditionFormat* findFormat(const std::string& word) {
    const auto format = std::ranges::find(formats, word, &AdditionFormat::word);
    return format == formats.end() ? nullptr : &*format;
}

void visitAddition(TextReader& stream, const AdditionVisitor& visitor) {
    stream.setRecord("addition");
    bool more = true;
    while (more) {
        const int code = stream.read<int>();
        if (code == dialogCode) {
            visitDialog(stream, visitor);
            return;
        }
        const auto format = std::ranges::find(formats, code, &AdditionFormat::code);
        if (format == formats.end()) {
            stream.fail();
        }
        visitor.link(*format);
        for (const AdditionField& field : format->fields) {
            visitor.field(field, readValue(stream, field.kind));
        }
        more = format->chained && stream.read<bool>();
    }
}

} // namespace mapc
