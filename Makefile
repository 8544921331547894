# Zol Estimator: the two commands a newcomer needs are `make run` and `make test`.
JOBS      ?= 2
BUILD     ?= build
ASAN      ?= build-asan
FUZZ      ?= build-fuzz
WERROR    := $(if $(CI),ON,OFF)
CMAKE_GEN := -G Ninja

.PHONY: all deps build run test test-core test-asan bench fuzz format clean install package

all: build

deps:
	@scripts/install-deps

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZOL_WERROR=$(WERROR)

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

run: build
	@scripts/run-sample $(BUILD)

test-core: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The core and the command-line tool again under AddressSanitizer and UBSan.
$(ASAN)/build.ninja: | deps
	cmake -S . -B $(ASAN) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Debug -DZOL_SANITIZE=ON \
	    -DZOL_BUILD_UI=OFF -DZOL_BUILD_BENCH=OFF -DZOL_WERROR=$(WERROR)

test-asan: deps $(ASAN)/build.ninja
	cmake --build $(ASAN) -j $(JOBS)
	cd $(ASAN) && ASAN_OPTIONS=detect_leaks=1:halt_on_error=1 \
	    UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# The libFuzzer targets of the file readers (clang, sanitizers on). `make test` builds them so
# that CI proves they build; scripts/run-fuzz runs one.
$(FUZZ)/build.ninja: | deps
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DZOL_BUILD_FUZZ=ON -DZOL_BUILD_UI=OFF -DZOL_BUILD_BENCH=OFF

fuzz: deps $(FUZZ)/build.ninja
	cmake --build $(FUZZ) -j $(JOBS) --target fuzzers

test: test-core test-asan fuzz

# `make install PREFIX=/opt/zol` (DESTDIR works too); `make package` builds the Debian package.
PREFIX    ?= /usr/local
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

package: build
	cd $(BUILD) && cpack -G DEB

bench: build
	@for b in $(BUILD)/bench/*; do echo "== $$b"; $$b; done

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf $(BUILD) $(ASAN) $(FUZZ)
