#include "GlDevice.h"

#include "platform/OpenGl.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr double depthRange = 1000.0; // vertices between -1000 and 1000 are seen
constexpr float leastAlpha = 0.05F;   // what the alpha test still drops

void setEnabled(GLenum capability, bool on) {
    if (on) {
        glEnable(capability);
    } else {
        glDisable(capability);
    }
}

GLenum modeOf(PaintPrimitive primitive) {
    switch (primitive) {
    case PaintPrimitive::lines:
        return GL_LINES;
    case PaintPrimitive::points:
        return GL_POINTS;
    case PaintPrimitive::triangles:
        break;
    }
    return GL_TRIANGLES;
}

GLenum formatOf(TextureFormat format) {
    switch (format) {
    case TextureFormat::luminance:
        return GL_LUMINANCE;
    case TextureFormat::rgb:
        return GL_RGB;
    case TextureFormat::rgba:
        break;
    }
    return GL_RGBA;
}

std::size_t channelsOf(TextureFormat format) {
    switch (format) {
    case TextureFormat::luminance:
        return 1;
    case TextureFormat::rgb:
        return 3;
    case TextureFormat::rgba:
        break;
    }
    return 4;
}

int query(GLenum name) {
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

bool hasExtension(std::string_view wanted) {
    const auto* list = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    std::string_view rest = list != nullptr ? list : "";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (rest.substr(0, end) == wanted) {
            return true;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

/// What framebuffer objects need beyond OpenGL 1, as the driver names it.
struct FramebufferCalls {
    PFNGLGENFRAMEBUFFERSPROC generate = nullptr;
    PFNGLBINDFRAMEBUFFERPROC bind = nullptr;
    PFNGLGENRENDERBUFFERSPROC generateStorage = nullptr;
    PFNGLBINDRENDERBUFFERPROC bindStorage = nullptr;
    PFNGLRENDERBUFFERSTORAGEPROC allocate = nullptr;
    PFNGLFRAMEBUFFERRENDERBUFFERPROC attach = nullptr;
    PFNGLCHECKFRAMEBUFFERSTATUSPROC check = nullptr;

    bool load() {
        // A driver hands out addresses for what it does not have, too: its list of extensions
        // decides.
        std::string suffix;
        if (!hasExtension("GL_ARB_framebuffer_object")) {
            if (!hasExtension("GL_EXT_framebuffer_object")) {
                return false;
            }
            suffix = "EXT";
        }
        return get(generate, "glGenFramebuffers" + suffix) &&
               get(bind, "glBindFramebuffer" + suffix) &&
               get(generateStorage, "glGenRenderbuffers" + suffix) &&
               get(bindStorage, "glBindRenderbuffer" + suffix) &&
               get(allocate, "glRenderbufferStorage" + suffix) &&
               get(attach, "glFramebufferRenderbuffer" + suffix) &&
               get(check, "glCheckFramebufferStatus" + suffix);
    }

private:
    template <class Call>
    static bool get(Call& call, const std::string& name) {
        call = reinterpret_cast<Call>(platform::openGlFunction(name.c_str()));
        return call != nullptr;
    }
};

FramebufferCalls framebufferCalls;

} // namespace

void GlDevice::setUp(float width, float height) {
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, static_cast<double>(width), 0.0, static_cast<double>(height), -depthRange,
            depthRange);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    for (const GLenum capability :
         {GL_MULTISAMPLE, GL_BLEND, GL_DEPTH_TEST, GL_TEXTURE_2D, GL_SCISSOR_TEST}) {
        glEnable(capability);
    }
    glAlphaFunc(GL_GREATER, leastAlpha);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_TEXTURE_COORD_ARRAY, GL_COLOR_ARRAY}) {
        glEnableClientState(array);
    }
    arrays = nullptr;
}

void GlDevice::draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
                    std::span<const std::uint32_t> indices) {
    if (vertices.data() != arrays) {
        arrays = vertices.data();
        glVertexPointer(3, GL_FLOAT, sizeof(PaintVertex), &arrays->x);
        glTexCoordPointer(2, GL_FLOAT, sizeof(PaintVertex), &arrays->u);
        glColorPointer(4, GL_FLOAT, sizeof(PaintVertex), &arrays->r);
    }
    // The range saves the driver a walk through the indices.
    glDrawRangeElements(modeOf(primitive), 0, static_cast<GLuint>(vertices.size() - 1),
                        static_cast<GLsizei>(indices.size()), GL_UNSIGNED_INT, indices.data());
}

void GlDevice::clear(float r, float g, float b, float a) {
    glClearColor(r, g, b, a);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void GlDevice::setBlend(BlendMode mode) {
    switch (mode) {
    case BlendMode::alpha:
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        break;
    case BlendMode::multiply:
        glBlendFunc(GL_DST_COLOR, GL_ZERO);
        break;
    case BlendMode::add:
        glBlendFunc(GL_ONE, GL_ONE);
        break;
    case BlendMode::brighten:
        glBlendFunc(GL_DST_COLOR, GL_ONE);
        break;
    case BlendMode::replace:
        glBlendFunc(GL_ONE, GL_ZERO);
        break;
    case BlendMode::unmasked:
        glBlendFunc(GL_ONE_MINUS_DST_ALPHA, GL_ONE);
        break;
    }
}

void GlDevice::setDepthTest(bool on) {
    setEnabled(GL_DEPTH_TEST, on);
}

void GlDevice::setDepthFunction(DepthFunction function) {
    glDepthFunc(function == DepthFunction::lessOrEqual ? GL_LEQUAL : GL_GEQUAL);
}

void GlDevice::setAlphaTest(bool on) {
    setEnabled(GL_ALPHA_TEST, on);
}

void GlDevice::setColourMask(bool rgb, bool alpha) {
    const GLboolean colour = rgb ? GL_TRUE : GL_FALSE;
    glColorMask(colour, colour, colour, alpha ? GL_TRUE : GL_FALSE);
}

void GlDevice::setWireframe(bool on) {
    glPolygonMode(GL_FRONT_AND_BACK, on ? GL_LINE : GL_FILL);
}

void GlDevice::setViewport(int x, int y, int width, int height) {
    glViewport(x, y, width, height);
}

void GlDevice::setScissor(int x, int y, int width, int height) {
    glScissor(x, y, width, height);
}

void GlDevice::bindTexture(int name) {
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(name));
}

void GlDevice::uploadTexture(int name, int width, int height, TextureFormat format, bool mipmaps,
                             const std::uint8_t* pixels) {
    std::vector<std::uint8_t> black;
    if (pixels == nullptr) {
        black.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                     channelsOf(format));
        pixels = black.data();
    }
    bindTexture(name);
    glTexParameteri(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, mipmaps ? GL_TRUE : GL_FALSE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(formatOf(format)), width, height, 0,
                 formatOf(format), GL_UNSIGNED_BYTE, pixels);
}

int GlDevice::createTextureName() {
    GLuint name = 0;
    glGenTextures(1, &name);
    return static_cast<int>(name);
}

void GlDevice::deleteTexture(int name) {
    const auto glName = static_cast<GLuint>(name);
    glDeleteTextures(1, &glName);
}

void GlDevice::copyToBoundTexture(int width, int height) {
    glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 0, 0, width, height, 0);
}

std::array<std::uint8_t, 3> GlDevice::readPixel(int x, int y) {
    std::array<std::uint8_t, 3> pixel{};
    glReadPixels(x, y, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, pixel.data());
    return pixel;
}

int GlDevice::alphaBits() {
    return query(GL_ALPHA_BITS);
}

bool GlDevice::createOffscreen(int width, int height) {
    FramebufferCalls& calls = framebufferCalls;
    if (!calls.load()) {
        return false;
    }
    GLuint storage = 0;
    calls.generateStorage(1, &storage);
    calls.bindStorage(GL_RENDERBUFFER, storage);
    calls.allocate(GL_RENDERBUFFER, GL_RGBA8, width, height);
    calls.generate(1, &framebuffer);
    calls.bind(GL_FRAMEBUFFER, framebuffer);
    calls.attach(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, storage);
    const bool usable = calls.check(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    calls.bind(GL_FRAMEBUFFER, 0);
    return usable;
}

void GlDevice::setOffscreen(bool on) {
    if (framebuffer != 0) {
        framebufferCalls.bind(GL_FRAMEBUFFER, on ? framebuffer : 0);
    }
}

int GlDevice::maxTextureSize() {
    return query(GL_MAX_TEXTURE_SIZE);
}
