# A thin front for the CMake presets. Each target installs the packages that it needs and lacks.

JOBS ?= $(shell nproc)
# Tests wait more than they compute.
TEST_JOBS ?= $(shell expr 3 '*' $(JOBS))
PREFIX ?= /usr/local
# More options for CMake, such as -DKV_QT_VERSIONS=6 for a build without Qt 5.
CMAKE_OPTIONS ?=
# How long "make prove" takes, and each fuzzer of "make fuzz", in seconds; 600 and 60 by default.
FOR ?=
# The Debian release of "make check-package" and "make check-release"; this machine's by default.
RELEASE ?= $(shell . /etc/os-release && echo $$VERSION_CODENAME)
# What "make check-release" runs, each with no packages but those of its own lists.
COMMANDS ?= run test package
# The lists of packages that building for a user needs, and "make run" more.
lists = build

.PHONY: all run test lint test-optimised test-sanitize prove fuzz coverage bench screenshots deps \
	install uninstall package check-package check-release clean
.NOTPARALLEL:

# A user's umask may let a group write; from folders that others can write to nothing is loaded.
SHELL = tools/shell
export CMAKE_OPTIONS JOBS

# What has to be built for a user.
all:
	tools/deps $(lists)
	cmake --preset release $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target installed kvprint-demo

# Prints a sample label through the dialog, at a scheduler of its own.
run: lists += run
run: all
	build/release/bin/kvprint-demo build/run

# Installs what "make run" and "make test" need.
deps:
	tools/deps build run qt5 test

# Checks the sources, and runs every test in both builds.
test: lint test-optimised test-sanitize

lint: deps
	git ls-files '*.cpp' '*.h' | xargs clang-format-19 --dry-run --Werror
	cmake --preset lint
	cmake --build --preset lint --parallel $(JOBS)
	run-clang-tidy-19 -quiet -j $(JOBS) -p build/lint 'kvlint-.*Unity' > build/lint/tidy.log 2>&1 \
		|| { grep -E 'error:|warning:' build/lint/tidy.log; exit 1; }

test-optimised test-sanitize: test-%: deps
	cmake --preset $*
	cmake --build --preset $* --parallel $(JOBS)
	ctest --preset $* --parallel $(TEST_JOBS)

# Holds the panel against a model of its rules, in random conversations, for FOR seconds.
prove: deps
	cmake --preset optimised
	cmake --build --preset optimised --parallel $(JOBS) --target kvtests-model
	tests/isolated KV_MODEL_SECONDS=$(or $(FOR),600) build/optimised/tests/model tst_model

# Tries random inputs on everything that reads files, scripts or texts, each fuzzer for FOR seconds.
fuzz:
	tools/deps build fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	tools/fuzz build/fuzz $(or $(FOR),60) $(JOBS)

# Says which lines of the panel the tests reach, and fails when they are too few.
coverage:
	tools/deps build run qt5 test coverage
	cmake --preset coverage
	cmake --build --preset coverage --parallel $(JOBS)
	tools/coverage build/coverage $(JOBS)

# Measures how long the panel takes.
bench:
	tools/deps build run qt5 bench
	cmake --preset release -DKV_BUILD_BENCH=ON $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target kvprint-bench
	tests/isolated build/release/bin/kvprint-bench

# Photographs the panel in every language, style, theme and scale, and for the guide.
screenshots:
	tools/deps build run qt5 screenshots
	cmake --preset release -DKV_BUILD_SCREENSHOTS=ON $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target kvprint-screenshots
	tests/isolated build/release/bin/kvprint-screenshots build/screenshots docs/guide

# Installs below PREFIX, and below DESTDIR when that is set.
install: all
	cmake --install build/release --prefix "$(PREFIX)"

# Removes what the last "make install" has installed.
uninstall:
	tools/uninstall build/release/install_manifest.txt

# Builds Debian packages in build/package, and has lintian look at them.
package:
	tools/deps build qt5 package
	tools/package build/package

# Installs the packages in a Debian of their own, of the same release, prints with them, and removes
# them without a trace. As root, with the network.
check-package: package
	tools/deps check-release
	tests/package/check $(RELEASE) build/package build/check-package

# Does what a newcomer does on a fresh Debian of that release, and checks the packages that come out.
# As root, with the network.
check-release:
	tools/deps check-release
	tests/package/check-release $(RELEASE) build/check-release $(COMMANDS)

clean:
	rm -rf build
