# Headers of others that most of our files read, parsed once for all of them. A file still includes
# what it needs: clang-tidy reads each one without them.
set(precompiled_headers
    <algorithm> <array> <cmath> <functional> <iostream> <map> <memory> <optional> <span> <sstream> <string>
    <string_view> <utility> <vector>
    <BulletDynamics/Dynamics/btRigidBody.h>)

# The first target that asks makes them, and the others of the same options share its.
function(precompile_headers target)
    get_property(maker GLOBAL PROPERTY precompiled_headers_maker)
    if(maker)
        target_precompile_headers(${target} REUSE_FROM ${maker})
    else()
        target_precompile_headers(${target} PRIVATE ${precompiled_headers})
        set_property(GLOBAL PROPERTY precompiled_headers_maker ${target})
    endif()
endfunction()
