# The commands of this repository. They wrap CMake presets, and first install what is missing (Debian, Ubuntu).
#
#   make demo    build `tarn` and try it on the notes that come with the repository
#   make test    build everything and run the tests
#   make help    the others

SHELL := /bin/bash
.SHELLFLAGS := -euo pipefail -c
.DEFAULT_GOAL := help
.PHONY: demo test test-slow test-long format format-check tidy bench asan tsan fuzz coverage reference header-costs install help clean

JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
NOTES ?=
FUZZ_SECONDS ?= 60
TSAN_EXCEPT ?=
export TARN_CORPUS ?=

# A compiler cache is used where there is one. Without ccache the build is the same, only slower the second time.
ifneq ($(shell command -v ccache),)
export CMAKE_CXX_COMPILER_LAUNCHER ?= ccache
endif
export CMAKE_BUILD_PARALLEL_LEVEL := $(JOBS)
export CTEST_PARALLEL_LEVEL ?= $(JOBS)

demo: ## build `tarn`, import notes into a new store, list and search them (NOTES=folder for your own)
	@scripts/install-dependencies.sh build
	scripts/configure.sh release
	cmake --build --preset release --target tarn
	scripts/demo.sh build/release build/demo "$(NOTES)"

test: ## build the library, the tools and the tests, and run all tests but the slow ones
	@scripts/install-dependencies.sh build tests
	scripts/configure.sh dev
	cmake --build --preset dev
	ctest --preset dev --label-exclude slow

test-slow: ## the tests that compile again (each public header alone, programs that use the library), and the long ones
	@scripts/install-dependencies.sh build tests
	scripts/configure.sh dev
	cmake --build --preset dev
	ctest --preset dev --label-regex slow

test-long: ## the long forms of tests: many random runs, deaths of processes and failures of disks; some minutes
	@scripts/install-dependencies.sh build tests
	scripts/configure.sh dev
	cmake --build --preset dev
	ctest --preset dev --label-regex long

format: ## lay out all sources by .clang-format
	@scripts/install-dependencies.sh format
	git ls-files -z -- '*.cpp' '*.h' | xargs -0r clang-format -i

format-check: ## fail when a source is not laid out by .clang-format
	@scripts/install-dependencies.sh format
	scripts/check-format.sh

tidy: ## clang-tidy over all sources
	@scripts/install-dependencies.sh build tests tidy
	scripts/configure.sh tidy
	cmake --build --preset tidy --target generated/tarnmodel/model/_OVNote.h
	scripts/tidy.py --jobs $(JOBS) build/tidy

bench: ## build the benchmarks, optimised, and run them (TARN_CORPUS=folder of Markdown, for the search)
	@scripts/install-dependencies.sh build bench
	scripts/configure.sh bench
	cmake --build --preset bench
	scripts/run-benchmarks.sh build/bench

asan: ## the tests with the address and undefined-behaviour sanitizers
	@scripts/install-dependencies.sh build tests
	scripts/configure.sh asan
	cmake --build --preset asan
	ctest --preset asan

tsan: ## the tests with the thread sanitizer (TSAN_EXCEPT=regular expression, for some of them)
	@scripts/install-dependencies.sh build tests
	scripts/configure.sh tsan
	scripts/without-address-randomisation.sh cmake --build --preset tsan
	scripts/without-address-randomisation.sh ctest --preset tsan $(if $(TSAN_EXCEPT),--exclude-regex "$(TSAN_EXCEPT)")

fuzz: ## run each fuzzer for FUZZ_SECONDS (60)
	@scripts/install-dependencies.sh build fuzz
	scripts/configure.sh fuzz
	cmake --build --preset fuzz
	scripts/run-fuzzers.sh build/fuzz "$(FUZZ_SECONDS)"

coverage: ## the tests with coverage, as build/coverage/report/index.html
	@scripts/install-dependencies.sh build tests coverage
	scripts/configure.sh coverage
	cmake --build --preset coverage
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage
	mkdir -p build/coverage/report
	gcovr --root . --object-directory build/coverage --exclude 'build/' --exclude 'tests/' --exclude 'benchmarks/' \
	  --html-details build/coverage/report/index.html --print-summary

header-costs: ## what it costs to include each public header: lines, and the time of the compiler
	@scripts/install-dependencies.sh build
	scripts/configure.sh release
	cmake --build --preset release --target generated/tarnmodel/model/_OVNote.h
	@scripts/measure-headers.py build/release

reference: ## the API reference of the installed headers, as build/reference/html/index.html
	@scripts/install-dependencies.sh build reference
	scripts/configure.sh release
	cmake --build --preset release --target generated/tarnmodel/model/_OVNote.h
	scripts/make-reference.py build/release/generated build/reference

install: ## install `tarn` and the library below PREFIX (/usr/local)
	@scripts/install-dependencies.sh build
	scripts/configure.sh release -DCMAKE_INSTALL_PREFIX="$(PREFIX)"
	cmake --build --preset release
	cmake --install build/release --prefix "$(PREFIX)"

clean: ## remove everything that was built
	@rm -rf build

help: ## this text
	@grep -E '^[a-z-]+: .*##' Makefile | sed -E 's/^([a-z-]+):.*## */\1\t/' | while IFS=$$'\t' read -r name text; do printf '  make %-14s %s\n' "$$name" "$$text"; done
