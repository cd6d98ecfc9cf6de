#include "MapDump.h"

#include "AdditionFormat.h"
#include "TextStream.h"
#include "sceneManager/SceneObject.h"

namespace mapc {

namespace {

constexpr int deepestGroup = 64;
constexpr int world = -1;

/// Walks a map's text and prints each record as it goes.
class Dump {
public:
    explicit Dump(const std::string& text) : stream(text) {}

    std::string print() {
        const std::size_t count = stream.readCount();
        line("objects " + std::to_string(count));
        for (std::size_t i = 0; i < count; ++i) {
            stream.setRecord("object");
            const int type = stream.read<int>();
            line("object " + std::to_string(i) + " type " + std::to_string(type));
            graphics(1);
            body();
            additions();
            tail(type);
        }
        joints();
        stream.setRecord("environment");
        begin(0, "ambient").values({"r", "g", "b"});
        line(" music \"" + readCountedString(stream) + "\"");
        return std::move(out);
    }

private:
    Dump& begin(int depth, const std::string& title) {
        out.append(static_cast<std::size_t>(depth) * 4, ' ').append(title);
        return *this;
    }

    void line(const std::string& text) { out.append(text).append("\n"); }

    /// Prints numbers as they stand in the file.
    Dump& values(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            add(name, number());
        }
        return *this;
    }

    /// A number, checked but kept in its own writing.
    std::string number() {
        TextWriter printed;
        printed << stream.read<float>();
        std::string text = printed.takeText();
        text.pop_back();
        return text;
    }

    void add(const std::string& name, const std::string& value) {
        out.append(" ").append(name).append(" ").append(value);
    }

    void graphics(int depth) {
        stream.setRecord("graphics");
        if (depth > deepestGroup) {
            stream.fail();
        }
        const int type = stream.read<int>();
        switch (type) {
        case 1:
            polygon(depth, "transform");
            values({"x", "y", "m00", "m01", "m10", "m11", "castsShadow"});
            break;
        case 2:
            polygon(depth, "physics");
            values({"castsShadow"});
            break;
        case 3:
            group(depth);
            return;
        case 4:
            polygon(depth, "mesh");
            break;
        case 5:
        case 6:
            water(depth, type == 5 ? "water" : "still water");
            break;
        default:
            stream.fail();
        }
        line("");
    }

    void group(int depth) {
        const std::size_t count = stream.readCount();
        begin(depth, "group of " + std::to_string(count) + "\n");
        for (std::size_t i = 0; i < count; ++i) {
            graphics(depth + 1);
        }
    }

    void polygon(int depth, const std::string& title) {
        const std::size_t floats = stream.readCount();
        begin(depth, title).line(" vertices " + std::to_string(floats / 2));
        for (std::size_t i = 0; i + 1 < floats; i += 2) {
            begin(depth + 1, "vertex").values({"x", "y", "r", "g", "b", "a", "u", "v"}).line("");
        }
        begin(depth, " ");
        add("texture", stream.read<std::string>());
        values({"parallax", "z"});
        modifiers();
    }

    void modifiers() {
        const std::size_t count = stream.readCount();
        for (std::size_t i = 0; i < count; ++i) {
            if (stream.read<int>() != 0) {
                stream.fail();
            }
            out.append(" sheet");
            values({"rows", "stepU", "stepV", "oneShot", "columns", "delay", "frame"});
        }
    }

    void water(int depth, const std::string& title) {
        begin(depth, title);
        values({"left", "bottom", "right", "top", "r", "g", "b", "a", "texcoordMode"});
        add("texture", stream.read<std::string>());
        values({"parallax", "z"});
        modifiers();
    }

    void body() {
        stream.setRecord("body");
        const int code = stream.read<int>();
        if (code == 0) {
            return;
        }
        begin(1, "body").values({"friction", "restitution", "mass"});
        shape(code);
        values({"x", "y", "m00", "m01", "m10", "m11", "velocityX", "velocityY", "answersContact",
                "kind", "waterFactor"});
        line("");
    }

    void shape(int code) {
        constexpr int hull = 4;
        constexpr int disc = 8;
        constexpr int box = 17;
        constexpr int compound = 31;
        if (code == disc) {
            out.append(" disc");
            values({"radius"});
        } else if (code == box) {
            out.append(" box");
            values({"halfX", "halfY"});
        } else if (code == hull) {
            const std::size_t count = stream.readCount();
            out.append(" hull");
            for (std::size_t i = 0; i < count; ++i) {
                values({"x", "y"});
            }
        } else if (code == compound) {
            const std::size_t count = stream.readCount();
            out.append(" compound");
            for (std::size_t i = 0; i < count; ++i) {
                out.append(" (");
                values({"x", "y", "m00", "m01", "m10", "m11"});
                const int child = stream.read<int>();
                if (child == compound) {
                    stream.fail();
                }
                shape(child);
                out.append(" )");
            }
        } else {
            stream.fail();
        }
    }

    void additions() {
        const std::size_t count = stream.readCount();
        const AdditionVisitor visitor{
            [this](const AdditionFormat& format) { out.append(" ").append(format.word); },
            [this](const AdditionField& field, const std::string& value) {
                out.append(" ").append(field.name).append("=").append(value);
            }};
        for (std::size_t i = 0; i < count; ++i) {
            begin(1, "addition");
            visitAddition(stream, visitor);
            line("");
        }
    }

    void statistics() {
        begin(1, "statistics");
        values({"speed", "push", "jump", "spare1", "spare2", "armor", "bite", "health"});
    }

    void tail(int type) {
        stream.setRecord("object");
        switch (type) {
        case sceneObjectType::player:
            statistics();
            break;
        case sceneObjectType::testPlayer:
            statistics();
            values({"waterSteps"});
            break;
        case sceneObjectType::evilPlayer:
            statistics();
            values({"eyesLit", "state"});
            pairs("waypoint");
            values({"waypointIndex"});
            break;
        case sceneObjectType::destruction:
            begin(1, "destruction");
            pairs("marker");
            break;
        case sceneObjectType::forcefield:
            begin(1, "forcefield").values({"forceX", "forceY"});
            break;
        case sceneObjectType::plain:
        case sceneObjectType::withoutPhysics:
            return;
        default:
            stream.fail();
        }
        line("");
    }

    void pairs(const char* name) {
        const std::size_t count = stream.readCount();
        for (std::size_t i = 0; i < count; ++i) {
            out.append(" ").append(name);
            const std::string first = stream.read<std::string>();
            add(first, stream.read<std::string>());
        }
    }

    void joints() {
        stream.setRecord("joint");
        const int count = stream.read<int>();
        line("joints " + std::to_string(count));
        for (int i = 0; i < count; ++i) {
            const int type = stream.read<int>();
            begin(0, "joint " + std::to_string(i));
            if (type == 4) {
                hinge();
            } else if (type == 9) {
                slider();
            }
            line("");
        }
    }

    void hinge() {
        out.append(" hinge");
        values({"a", "pivotX", "pivotY", "lower", "upper"});
        if (flag("motor")) {
            values({"speed", "impulse"});
        }
        const int b = stream.read<int>();
        add("b", std::to_string(b));
        if (b != world) {
            values({"pivotX", "pivotY"});
        }
    }

    void slider() {
        out.append(" slider");
        values({"a", "frameX", "frameY", "turnLower", "turnUpper"});
        if (flag("turnMotor")) {
            values({"speed", "force"});
        }
        values({"b", "frameX", "frameY", "lowerX", "lowerY", "upperX", "upperY"});
        if (flag("motor")) {
            values({"speedX", "speedY", "forceX", "forceY"});
        }
        if (flag("spring")) {
            values({"restX", "restY", "restAngle"});
        }
    }

    bool flag(const char* name) {
        const bool value = stream.read<bool>();
        add(name, value ? "1" : "0");
        return value;
    }

    TextReader stream;
    std::string out;
};

} // namespace

std::string dumpMap(const std::string& text) {
    return Dump(text).print();
}

} // namespace mapc
