# Two entry points for a fresh Debian 12 machine: `make run` and `make test`.
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORLEXA_WERROR=ON

.PHONY: all deps configure build run test test-sanitize fuzz bench install clean

# The sanitizer build of the whole suite, in a folder of its own.
SANITIZE_DIR ?= build-sanitize
# The fuzz build (clang with libFuzzer): each target runs FUZZ_SECONDS; FUZZ_TARGETS picks some.
FUZZ_DIR ?= build-fuzz
FUZZ_SECONDS ?= 60
FUZZ_TARGETS ?=
# How many targets fuzz at once; they run at idle priority, so more than the cores is harmless.
FUZZ_JOBS ?= 1
FUZZ_CXX ?= clang++-19
# Debian 12's clang 14 crashes on the largest rule file; clang 19 with its libFuzzer runtime.
FUZZ_PACKAGES ?= clang-19 libclang-rt-19-dev

all: build

deps:
	@bash tools/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD_DIR) $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

# Starts the desktop program when it was built, else translates a sample on the command line.
run: build
	@if [ -x $(BUILD_DIR)/bin/vorlexa ]; then \
		$(BUILD_DIR)/bin/vorlexa; \
	else \
		printf 'The house is big.\n' | $(BUILD_DIR)/bin/vorlexa-cli translate; \
	fi

test: build
	ctest --test-dir $(BUILD_DIR) -j $(JOBS) --output-on-failure --timeout 300

# Every test again with AddressSanitizer, LeakSanitizer and UndefinedBehaviorSanitizer.
test-sanitize: deps
	cmake -S . -B $(SANITIZE_DIR) $(CMAKE_FLAGS) -DVORLEXA_SANITIZE=ON -DVORLEXA_BUILD_BENCH=OFF
	cmake --build $(SANITIZE_DIR) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tools/lsan.supp:print_suppressions=0 \
	UBSAN_OPTIONS=print_stacktrace=1 \
	ctest --test-dir $(SANITIZE_DIR) -j $(JOBS) --output-on-failure --timeout 600

# Each fuzz target for FUZZ_SECONDS; fails on a crash, a leak, an input slower than 2 s or one
# that needs more than 1 GB.
fuzz:
	@bash tools/install-deps.sh $(FUZZ_PACKAGES)
	cmake -S . -B $(FUZZ_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=$(FUZZ_CXX) \
		-DVORLEXA_FUZZ=ON -DVORLEXA_BUILD_TESTS=OFF -DVORLEXA_BUILD_BENCH=OFF -DVORLEXA_BUILD_DESKTOP=OFF
	cmake --build $(FUZZ_DIR) -j $(JOBS)
	FUZZ_SECONDS=$(FUZZ_SECONDS) FUZZ_JOBS=$(FUZZ_JOBS) bash fuzz/run.sh $(FUZZ_DIR) $(FUZZ_TARGETS)

bench: build
	@for b in $(BUILD_DIR)/bin/bench_*; do [ -x "$$b" ] && "$$b"; done

install: build
	cmake --install $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR) $(SANITIZE_DIR) $(FUZZ_DIR)
