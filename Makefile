# Brevik: `make run` builds and starts the editor, `make test` builds and runs
# the test suite. Both install missing Debian packages first.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

PREFIX ?= /usr/local
DESTDIR ?=

.PHONY: all deps build run test install test-asan bench fuzz clean

all: build

deps:
	@./scripts/install-deps.sh

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) $(CMAKE_FLAGS)

build: deps $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

run: build
	@./scripts/run.sh $(BUILD)/src/brevik $(ARGS)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The programs, the desktop entry, the icons and the man pages under PREFIX
# (DESTDIR=/tmp/x to stage them elsewhere).
install: build
	DESTDIR=$(DESTDIR) cmake --install $(BUILD) --prefix $(PREFIX)

# The whole suite under AddressSanitizer (leaks included) and
# UndefinedBehaviorSanitizer, in its own build folder. The test binaries also
# run while building (test discovery), so the options hold for both steps.
SANITIZE := -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
# No leak is suppressed: neither Qt's offscreen platform nor fontconfig
# reports one here.
SANITIZER_ENV := ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
test-asan: deps
	cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_CXX_FLAGS="$(SANITIZE)" -DCMAKE_EXE_LINKER_FLAGS="$(SANITIZE)"
	$(SANITIZER_ENV) cmake --build build-asan -j $(JOBS)
	cd build-asan && $(SANITIZER_ENV) ctest --output-on-failure -j $(JOBS)

bench:
	@./scripts/install-deps.sh --extras
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DBREVIK_BUILD_BENCH=ON -DBREVIK_BUILD_TESTS=OFF
	cmake --build build-bench -j $(JOBS) --target brevik_bench brevik-cli
	./build-bench/bench/brevik_bench
	./bench/cli-vs-icoutils.sh build-bench/src/brevik-cli

FUZZ_SECONDS ?= 60
# FUZZERS=RecentStoreFuzzer runs only the harnesses named; all by default.
FUZZERS ?=
fuzz:
	@./scripts/install-deps.sh --extras
	CXX=clang++ cmake -S . -B build-fuzz -DBREVIK_BUILD_FUZZ=ON -DBREVIK_BUILD_TESTS=OFF -DBREVIK_BUILD_SHELL=OFF
	cmake --build build-fuzz -j $(JOBS)
	./scripts/fuzz.sh build-fuzz/fuzz $(FUZZ_SECONDS) $(FUZZERS)

clean:
	rm -rf $(BUILD) build-asan build-bench build-fuzz
