# Each target works first on a fresh Debian 12 machine: it installs what it needs.
.PHONY: \
    abi-report \
    bench \
    bench-drag \
    bench-editor \
    bench-map \
    bench-peers \
    clean \
    coverage \
    demo \
    docs \
    editor \
    editor-test \
    format \
    fuzz \
    gallery \
    hostile-images \
    hostile-rasters \
    images \
    install-tests \
    interruptions \
    lint \
    mutants \
    package \
    soak \
    test \
    test-sanitized \
    test-threads \
    test-valgrind \
    test-windows

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

test-threads: build/threads/build.ninja
	cmake --build --preset threads
	ctest --preset threads

test-valgrind: build/valgrind/build.ninja
	cmake --build --preset valgrind
	scripts/memcheck build/valgrind/tests

test-windows: build/windows-mingw/build.ninja
	cmake --build --preset windows-mingw
	ctest --preset windows-mingw
	scripts/run_in_wine build/windows-mingw/bin/gallery.exe build/gallery-windows

coverage: build/coverage/build.ninja
	scripts/coverage

mutants:
	scripts/install_packages mutants
	nice scripts/mutate --jobs $(CMAKE_BUILD_PARALLEL_LEVEL)

hostile-images: build/release/build.ninja
	cmake --build --preset release --target map_page_tests
	ulimit -v 6000000; HOSTILE_IMAGES=$(or $(COUNT),5000) HOSTILE_IMAGES_FIRST=$(or $(FIRST),0) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='HostileImages.*'

hostile-rasters: build/release/build.ninja
	cmake --build --preset release --target map_page_tests
	ulimit -v 6000000; HOSTILE_RASTERS=$(or $(COUNT),2000) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='HostileRasters.*'

soak: build/release/build.ninja
	cmake --build --preset release --target soak
	SOAK_DRAWS=$(or $(COUNT),1000000) build/release/tests/soak

interruptions: build/release/build.ninja
	cmake --build --preset release --target map_page_tests
	INTERRUPTIONS=$(or $(COUNT),200) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='Interrupted.*'

install-tests: build/package/build.ninja
	cmake --build --preset package
	ctest --preset package

package: build/package/build.ninja build/windows-mingw/build.ninja
	cmake --build --preset package
	cmake --build --preset windows-mingw --target map_surround_shared map_surround_static
	rm -rf build/package/packages build/windows-mingw/packages
	cd build/package && cpack
	cd build/windows-mingw && cpack
	scripts/check_packages build/package/packages build/windows-mingw/packages

abi-report:
	scripts/install_packages abi
	scripts/abi_report build/abi $(BASE)

gallery: build/release/build.ninja
	cmake --build --preset release --target gallery smallest_host framed_page
	rm -rf build/gallery
	build/release/examples/gallery build/gallery
	build/release/examples/gallery --elements build/gallery/elements
	build/release/examples/gallery --annotated build/gallery/annotated
	mkdir -p build/gallery/pages
	cd build/gallery/pages && ../../release/examples/smallest_host
	cd build/gallery/pages && ../../release/examples/framed_page

images: gallery
	scripts/check_images --keep build/gallery

editor: build/editor/build.ninja
	cmake --build --preset editor --target page_editor

editor-test: build/editor/build.ninja
	cmake --build --preset editor
	QT_QPA_PLATFORM=offscreen ctest --preset editor

bench: build/bench/build.ninja
	cmake --build --preset bench --target library_bench
	build/bench/bench/library/library_bench --benchmark_out=build/bench/figures.json

bench-peers: build/bench/build.ninja demo
	scripts/install_packages peers
	cmake --build --preset bench --target furniture_page
	bench/peers/compare build/bench/bench/furniture_page \
	    --map-page build/demo/host/map_page/map_page build/demo/rasters/L7_ETMs.tif

bench-drag: build/bench-page/build.ninja
	cmake --build --preset bench-page --target live_page_bench
	build/bench-page/bench/page/live_page_bench

bench-editor: build/bench-editor/build.ninja
	cmake --build --preset bench-editor --target editor_drag_bench
	QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false \
	    build/bench-editor/bench/page/editor_drag_bench

bench-map: demo
	scripts/install_packages peers
	bench/peers/compare_map build/demo/host/map_page/map_page \
	    build/demo/rasters/L7_ETMs.tif build/bench/rasters

docs:
	scripts/install_packages docs
	scripts/build_docs build/docs

fuzz: build/fuzz/build.ninja
	cmake --build --preset fuzz
	printf '%s\n' elements gdiplus | xargs -P 2 -I{} scripts/fuzz {} $(or $(FUZZ_SECONDS),30)

format:
	scripts/install_packages lint
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

lint: build/lint/build.ninja
	scripts/install_packages lint
	scripts/lint

clean:
	rm -rf build

purpose_of_demo = demo
purpose_of_editor = editor
purpose_of_lint = lint
purpose_of_bench = bench
purpose_of_bench-page = bench-page
purpose_of_bench-editor = bench-editor
purpose_of_package = package
purpose_of_fuzz = fuzz
purpose_of_threads = library
purpose_of_valgrind = valgrind
purpose_of_windows-mingw = windows
purpose_of_coverage = coverage

build/%/build.ninja: CMakePresets.json scripts/install_packages
	scripts/install_packages $(or $(purpose_of_$*),test)
	cmake --preset $* >/dev/null
	touch $@
