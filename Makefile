# The project's front door: set-up, build, examples, tests, memcheck, benchmarks, install.
BUILD_DIR ?= build
PREFIX ?= /usr/local
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: all deps build demo check memcheck bench clients fuzz install clean

all: build

# Installs what is missing on a Debian 12 machine (needs root; does nothing when all is there).
deps:
	@bash tools/install-deps.sh

build: deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD_DIR) -j $(JOBS)

demo: build
	@bash tools/run-examples.sh $(BUILD_DIR)

check: build
	cd $(BUILD_DIR) && ctest -j $(JOBS) --output-on-failure

# valgrind's i386 tool cannot run under qemu-i386: an emulated host skips memcheck, and says so.
memcheck: build
	@if [ "$$(sh tools/i386-host.sh mode)" != native ]; then \
	  echo "memcheck needs a host that runs i386 programs natively; skipped"; \
	else \
	  cd $(BUILD_DIR) && LORB_MEMCHECK=1 LORB_MEMCHECK_LOGS=$(CURDIR)/$(BUILD_DIR)/memcheck \
	    ctest -j $(JOBS) --timeout 1200 --output-on-failure; \
	fi

bench: build
	@bash bench/run.sh $(BUILD_DIR)

# Real programs from Debian's source packages, built and tested with Lorb++ and with the GNU library.
clients: build
	@bash tools/clients/run.sh $(BUILD_DIR)

# Coverage-guided fuzzing of the parsers, stream buffers, string and containers with AFL++;
# FUZZ_SECONDS a target (default 600), FUZZ_ONLY=<name> for one.
fuzz:
	@bash tools/install-deps.sh fuzz
	@bash tools/fuzz/run.sh $(BUILD_DIR)

install: build
	cmake --install $(BUILD_DIR) --prefix $(PREFIX)

clean:
	rm -rf $(BUILD_DIR)
