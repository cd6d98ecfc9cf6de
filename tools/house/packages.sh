# The Debian packages that each of the three commands needs; sourced by them.
build_packages=(g++ cmake ninja-build ccache pkg-config libbullet-dev libglfw3-dev libstb-dev
    libsdl2-dev libsdl2-mixer-dev libsnappy-dev libgl-dev nlohmann-json3-dev libfreetype-dev
    libsndfile1-dev fonts-dejavu-core)
screen_packages=(xvfb xauth libgl1-mesa-dri xdotool imagemagick)
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev clang-format clang-tidy openbox)
bench_packages=(libbenchmark-dev libgtest-dev libgmock-dev)
