# Each target works first on a fresh Debian 12 machine: it installs what it needs.
.PHONY: demo test test-sanitized test-windows gallery bench format lint clean

# A little less than the machine has would be slower and no kinder.
export CMAKE_BUILD_PARALLEL_LEVEL ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

demo: build/demo/build.ninja
	cmake --build --preset demo --target map_page make_sample_rasters
	scripts/draw_demo build/demo

test: build/release/build.ninja
	cmake --build --preset release
	ctest --preset release

test-sanitized: build/sanitized/build.ninja
	cmake --build --preset sanitized
	ctest --preset sanitized

test-windows: build/windows-mingw/build.ninja
	cmake --build --preset windows-mingw
	ctest --preset windows-mingw
	mkdir -p build/gallery-windows
	scripts/run_in_wine build/windows-mingw/bin/gallery.exe build/gallery-windows

gallery: build/release/build.ninja
	cmake --build --preset release --target gallery
	mkdir -p build/gallery
	build/release/examples/gallery build/gallery

bench: build/bench/build.ninja
	cmake --build --preset bench
	build/bench/bench/legend_bench --benchmark_enable_random_interleaving=true
	build/bench/bench/legend_bench_library_only --benchmark_enable_random_interleaving=true

format:
	scripts/install_packages lint
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

lint: build/release/build.ninja
	scripts/install_packages lint
	scripts/lint

clean:
	rm -rf build

purpose_of_demo = demo
purpose_of_bench = bench
purpose_of_windows-mingw = windows

build/%/build.ninja: CMakePresets.json scripts/install_packages
	scripts/install_packages $(or $(purpose_of_$*),test)
	cmake --preset $* >/dev/null
	touch $@
