# A thin front for the CMake presets. Every target that needs packages gets them by "make deps".

JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
# More options for CMake, such as -DKV_QT_VERSIONS=6 for a build without Qt 5.
CMAKE_OPTIONS ?=
# How long "make prove" takes, in seconds.
FOR ?= 600

.PHONY: all run test lint test-release test-sanitize prove coverage bench screenshots deps \
	install uninstall package check-package clean
.NOTPARALLEL:

# A user's umask may let a group write; from folders that others can write to nothing is loaded.
SHELL = tools/shell
export CMAKE_OPTIONS JOBS

# What has to be built for a user.
all: deps
	cmake --preset release $(CMAKE_OPTIONS)
	cmake --build --preset release --parallel $(JOBS) --target installed kvprint-demo

# Prints a sample label through the dialog, at a scheduler of its own.
run: all
	build/release/bin/kvprint-demo build/run

# Checks the sources, and runs every test in both builds.
test: deps lint test-release test-sanitize

lint:
	git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
	cmake --preset lint
	run-clang-tidy -quiet -j $(JOBS) -p build/lint 'Unity/unity_' > build/lint/tidy.log 2>&1 \
		|| { grep -E 'error:|warning:' build/lint/tidy.log; exit 1; }

test-release test-sanitize: test-%:
	cmake --preset $*
	cmake --build --preset $* --parallel $(JOBS)
	ctest --preset $* --parallel $(JOBS)

# Holds the panel against a model of its rules, in random conversations, for FOR seconds.
prove: deps
	cmake --preset release
	cmake --build --preset release --parallel $(JOBS) --target tst_model
	tests/isolated KV_MODEL_SECONDS=$(FOR) build/release/tests/tst_model

# Says which lines of the panel the tests reach, and fails when they are too few.
coverage: deps
	cmake --preset coverage
	cmake --build --preset coverage --parallel $(JOBS)
	tools/coverage build/coverage $(JOBS)

# Measures how long the panel takes.
bench: deps
	cmake --preset release
	cmake --build --preset release --parallel $(JOBS) --target kvprint-bench
	tests/isolated build/release/bin/kvprint-bench

# Photographs the panel in every language, style, theme and scale, and for the guide.
screenshots: deps
	cmake --preset release
	cmake --build --preset release --parallel $(JOBS) --target kvprint-screenshots
	tests/isolated build/release/bin/kvprint-screenshots build/screenshots docs/guide

# Installs the packages that are missing.
deps:
	tools/deps

# Installs below PREFIX, and below DESTDIR when that is set.
install: all
	cmake --install build/release --prefix "$(PREFIX)"

# Removes what the last "make install" has installed.
uninstall:
	tools/uninstall build/release/install_manifest.txt

# Builds Debian packages in build/package, and has lintian look at them.
package: deps
	tools/package build/package

# Installs the packages in a Debian 12 of their own, prints with them, and removes them without a
# trace. As root, with the network.
check-package: package
	tests/package/check build/package build/check-package

clean:
	rm -rf build
