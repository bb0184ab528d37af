# Brevik: `make run` builds and starts the editor, `make test` builds and runs
# the test suite. Both install missing Debian packages first.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps build run test bench fuzz clean

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

bench:
	@./scripts/install-deps.sh --extras
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DBREVIK_BUILD_BENCH=ON -DBREVIK_BUILD_TESTS=OFF
	cmake --build build-bench -j $(JOBS) --target brevik_bench
	./build-bench/bench/brevik_bench

FUZZ_SECONDS ?= 60
fuzz:
	@./scripts/install-deps.sh --extras
	CXX=clang++ cmake -S . -B build-fuzz -DBREVIK_BUILD_FUZZ=ON -DBREVIK_BUILD_TESTS=OFF -DBREVIK_BUILD_SHELL=OFF
	cmake --build build-fuzz -j $(JOBS)
	./scripts/fuzz.sh build-fuzz/fuzz $(FUZZ_SECONDS)

clean:
	rm -rf $(BUILD) build-bench build-fuzz
