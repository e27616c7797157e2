# Two entry points for a fresh Debian 12 machine: `make run` and `make test`.
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORLEXA_WERROR=ON

.PHONY: all deps configure build run test bench install clean

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

bench: build
	@for b in $(BUILD_DIR)/bin/bench_*; do [ -x "$$b" ] && "$$b"; done

install: build
	cmake --install $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
