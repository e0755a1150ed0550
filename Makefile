# The two commands of the README, and a few for the developers. Each sets up, builds and runs what it names.
BUILD ?= build/release
JOBS ?= $(shell nproc)

.PHONY: run test setup build check format clean

run: build
	$(BUILD)/bin/production_planning
	$(BUILD)/bin/vorq solve examples/data/facility_location.lp

test: build
	cd $(BUILD) && ctest --output-on-failure --parallel $(JOBS)

setup:
	scripts/setup.sh

build: setup
	cmake --preset release
	cmake --build --preset release --parallel $(JOBS)

# What continuous integration runs besides the tests.
check: setup
	scripts/check_format.sh
	scripts/check_lint.sh
	scripts/check_sanitizers.sh

format:
	scripts/check_format.sh --fix

clean:
	rm -rf build
