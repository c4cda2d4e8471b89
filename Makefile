# What people type. Everything is done by CMake and the scripts in tools/.
#
#   make setup     installs the Debian packages that are missing
#   make demo      builds and shows the main job on a real certificate
#   make check     builds and runs all tests, optimised and under the sanitizers
#   make install   installs below PREFIX (DESTDIR is honoured)
#   make lint      clang-tidy and cppcheck
#   make bench     benchmarks against the peer libraries
#   make fuzz      every fuzz target for SECONDS seconds each

PREFIX ?= /usr/local
SECONDS ?= 300
JOBS ?= $(shell nproc)

.PHONY: all setup demo check install lint bench fuzz clean

all:
	cmake --preset release
	cmake --build --preset release -j $(JOBS)

setup:
	@tools/setup.sh

demo: setup
	@tools/demo.sh

check: setup
	@tools/check.sh

install:
	cmake -S . -B build/install -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=$(PREFIX) -DQUARN_BUILD_TESTS=OFF
	cmake --build build/install -j $(JOBS)
	cmake --install build/install
	@[ -n "$(DESTDIR)" ] || [ "$$(id -u)" != 0 ] || ldconfig

lint:
	@tools/setup.sh lint
	@tools/lint.sh

bench:
	@tools/setup.sh bench
	@tools/bench.sh

fuzz:
	@tools/setup.sh fuzz
	@tools/fuzz.sh $(SECONDS)

clean:
	rm -rf build
