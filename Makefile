# SPDX-License-Identifier: Apache-2.0

# A front end for the CMake presets. Each target installs the packages that it needs.

JOBS ?= $(shell nproc)
# More tests than processors: they mostly wait.
TEST_JOBS ?= $(shell expr 3 '*' $(JOBS))
PREFIX ?= /usr/local
# More options for CMake, such as -DKV_QT_VERSIONS=6 for a build without Qt 5.
CMAKE_OPTIONS ?=
# Seconds for "make prove" (600 by default) and for each fuzzer of "make fuzz" (60).
FOR ?=
# The Debian release of "make check-package" and "make check-release"; this machine's by default.
RELEASE ?= $(shell . /etc/os-release && echo $$VERSION_CODENAME)
# What "make check-release" runs, each with only the packages of its own lists.
COMMANDS ?= run test package
# The lists of packages to install before building; "make run" adds one.
lists = build
# The sources that begin with their licence.
licensed = '*.cpp' '*.h' '*.py' '*.cmake' '*.cmake.in' '*CMakeLists.txt' Makefile .ci debian/rules \
	resources/completion session/60kvprint.in tests/isolated tests/package tools ':!tools/packages'

.PHONY: all run test lint format test-optimised test-sanitize prove soak fuzz coverage bench screenshots deps \
	install uninstall package check-package check-release clean
.NOTPARALLEL:

# Sets the umask to 022: nothing is loaded from folders that others can write to.
SHELL = tools/shell
export CMAKE_OPTIONS JOBS

# Builds everything that is installed.
all:
	tools/deps $(lists)
	cmake --preset release $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target installed kvprint-demo

# Prints a sample label through the dialog, with a private print scheduler.
run: lists += run
run: all
	build/release/bin/kvprint-demo build/run

# Installs what "make run" and "make test" need.
deps:
	tools/deps build run qt5 gtk test

# Checks the sources, and runs every test in both builds. clang-tidy keeps one processor busy while the
# others build; the processors that the first tests leave idle compile for the second ones.
test: format
	printf '%s\n' lint optimised sanitize | xargs -P $(JOBS) -I PRESET cmake --preset PRESET
	printf '%s\n' lint optimised | xargs -P 2 -I PRESET cmake --build --preset PRESET --parallel $(JOBS)
	printf '%s\n' 'ctest --preset optimised --parallel $(TEST_JOBS)' \
		'nice -n 19 cmake --build --preset sanitize --parallel $(JOBS) -- --quiet' | xargs -P 2 -I COMMAND sh -c COMMAND
	$(MAKE) test-sanitize

lint: format
	cmake --preset lint
	cmake --build --preset lint

format: deps
	git ls-files '*.cpp' '*.h' | xargs -n 64 -P $(JOBS) clang-format-19 --dry-run --Werror
	! git grep -L '^[/#]* SPDX-License-Identifier: Apache-2.0$$' -- $(licensed) | grep .

test-optimised test-sanitize: test-%: deps
	cmake --preset $*
	cmake --build --preset $* --parallel $(JOBS)
	ctest --preset $* --parallel $(TEST_JOBS)

# Compares the panel with a model of its rules in random conversations, for FOR seconds.
prove: deps
	cmake --preset optimised
	cmake --build --preset optimised --parallel $(JOBS) --target kvtests-model
	tests/isolated KV_MODEL_SECONDS=$(or $(FOR),600) build/optimised/tests/model tst_model

# Prints a batch of 10,000 labels while kvprint and the scheduler are ended 20 times each.
soak: deps
	cmake --preset optimised
	cmake --build --preset optimised --parallel $(JOBS) --target kvtests-automation
	tests/isolated QTEST_FUNCTION_TIMEOUT=3600000 KV_SOAK_JOBS=10000 KV_SOAK_KILLS=20 \
		build/optimised/tests/automation tst_batchsoak

# Runs each fuzzer for FOR seconds.
fuzz:
	tools/deps build fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	tools/fuzz build/fuzz $(or $(FOR),60) $(JOBS)

# Measures the line coverage of the panel, and fails if it is too low.
coverage:
	tools/deps build run qt5 gtk test coverage
	cmake --preset coverage
	cmake --build --preset coverage --parallel $(JOBS)
	tools/coverage build/coverage $(JOBS)

# Measures the panel, what the extension costs applications, and what labels cost from scripts.
bench:
	tools/deps build run qt5 gtk bench
	cmake --preset release -DKV_BUILD_BENCH=ON $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target kvprint-bench
	tests/isolated build/release/bin/kvprint-bench

# Draws the panel in every language, style, theme and scale, and the guide's pictures.
screenshots:
	tools/deps build run qt5 gtk screenshots
	cmake --preset release -DKV_BUILD_SCREENSHOTS=ON $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target kvprint-screenshots
	tests/isolated build/release/bin/kvprint-screenshots build/screenshots docs/guide

# Installs below PREFIX, and below DESTDIR when that is set.
install: all
	cmake --install build/release --prefix "$(PREFIX)"

# Removes what the last "make install" has installed.
uninstall:
	tools/uninstall build/release/install_manifest.txt

# Builds Debian packages in build/package, and checks them with lintian.
package:
	tools/deps build qt5 gtk package
	tools/package build/package

# Installs the packages in a chroot of the Debian release, prints, removes them, and checks that no file
# is left. Needs root and the network.
check-package: package
	tools/deps check-release
	tests/package/check $(RELEASE) build/package build/check-package

# Runs COMMANDS in a new chroot of the Debian release, and checks the packages that they build. Needs
# root and the network.
check-release:
	tools/deps check-release
	tests/package/check-release $(RELEASE) build/check-release $(COMMANDS)

clean:
	rm -rf build
