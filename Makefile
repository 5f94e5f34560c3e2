# Each target works first on a fresh Debian 12 machine: it installs what it needs.
.PHONY: \
    abi-report \
    bench \
    bench-drag \
    bench-editor \
    bench-map \
    bench-peers \
    benches \
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
    layout-trial \
    likeness \
    lint \
    mutants \
    package \
    soak \
    strangers \
    test \
    test-sanitized \
    test-threads \
    test-valgrind \
    test-windows \
    true-pages

# A little less than the machine has would be slower and no kinder.
export CMAKE_BUILD_PARALLEL_LEVEL ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

demo: build/release/with-demo
	cmake --build --preset release --target map_page make_sample_rasters
	scripts/draw_demo build/release build/demo

test: build/release/with-test
	cmake --build --preset release
	ctest --preset release

likeness: build/release/with-likeness
	cmake --build --preset release \
	    --target gallery compare_pictures map_page make_sample_rasters
	scripts/likeness build/release

test-sanitized: build/sanitized/build.ninja
	cmake --build --preset sanitized
	ctest --preset sanitized

test-threads: build/threads/build.ninja
	cmake --build --preset threads
	ctest --preset threads

test-valgrind: build/release/with-test
	scripts/install_packages valgrind
	cmake --build --preset release --target library_tests memory_tests
	scripts/memcheck build/release/tests

test-windows: build/windows-mingw/build.ninja
	cmake --build --preset windows-mingw
	ctest --preset windows-mingw
	scripts/run_in_wine build/windows-mingw/bin/gallery.exe build/gallery-windows

coverage: build/coverage/build.ninja
	scripts/coverage

mutants:
	scripts/install_packages mutants
	nice scripts/mutate --jobs $(CMAKE_BUILD_PARALLEL_LEVEL)

hostile-images: build/release/with-test
	cmake --build --preset release --target map_page_tests
	ulimit -v 6000000; HOSTILE_IMAGES=$(or $(COUNT),5000) HOSTILE_IMAGES_FIRST=$(or $(FIRST),0) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='HostileImages.*'

hostile-rasters: build/release/with-test
	cmake --build --preset release --target map_page_tests
	ulimit -v 6000000; HOSTILE_RASTERS=$(or $(COUNT),2000) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='HostileRasters.*'

true-pages: build/release/with-test
	cmake --build --preset release --target true_pages_tests
	seq 0 9 | TRUE_PAGES=$(or $(COUNT),2000) TRUE_PAGES_FIRST=$(or $(FIRST),0) \
	    TRUE_PAGES_PRINT=$(or $(PRINT),0) xargs -P $(CTEST_PARALLEL_LEVEL) -I{} \
	    env GTEST_TOTAL_SHARDS=10 GTEST_SHARD_INDEX={} GTEST_BRIEF=1 \
	    build/release/tests/host/true_pages/true_pages_tests

layout-trial: build/release/with-test
	cmake --build --preset release --target page_tests
	LAYOUT_PAGES=$(or $(COUNT),700) LAYOUT_PAGES_FIRST=$(or $(FIRST),0) \
	    build/release/tests/host/page/page_tests --gtest_filter='*LayoutTrial*'

soak: build/release/with-test
	cmake --build --preset release --target soak
	SOAK_DRAWS=$(or $(COUNT),1000000) build/release/tests/soak

interruptions: build/release/with-test
	cmake --build --preset release --target map_page_tests
	INTERRUPTIONS=$(or $(COUNT),200) \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='Interrupted.*'

strangers: build/release/with-test
	cmake --build --preset release --target map_page_tests
	seq 0 3 | STRANGERS=all xargs -P $(CTEST_PARALLEL_LEVEL) -I{} env GTEST_TOTAL_SHARDS=4 \
	    GTEST_SHARD_INDEX={} GTEST_BRIEF=1 \
	    build/release/tests/host/map_page/map_page_tests --gtest_filter='*StrangersPage*'

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

gallery: build/release/with-demo
	cmake --build --preset release --target gallery smallest_host framed_page edited_page
	rm -rf build/gallery
	build/release/examples/gallery build/gallery
	build/release/examples/gallery --elements build/gallery/elements
	build/release/examples/gallery --annotated build/gallery/annotated
	mkdir -p build/gallery/pages
	cd build/gallery/pages && ../../release/examples/smallest_host
	cd build/gallery/pages && ../../release/examples/framed_page
	cd build/gallery/pages && ../../release/examples/edited_page >/dev/null

images: gallery
	scripts/check_images --keep build/gallery

editor: build/release/with-editor
	cmake --build --preset release --target page_editor

editor-test: build/release/with-test build/release/with-editor build/release/with-surfaces
	cmake --build --preset release \
	    --target page_editor_tests example_tests qt_image sdl_surface
	ctest --preset release -R '^(page_editor_tests|examples)\.'

bench: build/release/with-bench
	cmake --build --preset release --target library_bench
	build/release/bench/library/library_bench

benches: build/release/with-bench build/release/with-editor
	cmake --build --preset release \
	    --target library_bench furniture_page live_page_bench editor_drag_bench

bench-peers: build/release/with-bench demo
	scripts/install_packages peers
	cmake --build --preset release --target furniture_page
	bench/peers/compare build/release/bench/furniture_page \
	    --map-page build/release/host/map_page/map_page build/demo/rasters/L7_ETMs.tif

bench-drag: build/release/with-bench
	cmake --build --preset release --target live_page_bench
	build/release/bench/page/live_page_bench

bench-editor: build/release/with-bench build/release/with-editor
	cmake --build --preset release --target editor_drag_bench
	QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false \
	    build/release/bench/page/editor_drag_bench

bench-map: demo
	scripts/install_packages peers
	bench/peers/compare_map build/release/host/map_page/map_page \
	    build/demo/rasters/L7_ETMs.tif build/bench/rasters

docs:
	scripts/install_packages docs
	scripts/build_docs build/docs

fuzz: build/fuzz/build.ninja
	cmake --build --preset fuzz --target elements_fuzzer gdiplus_fuzzer page_fuzzer
	printf '%s\n' elements gdiplus page | xargs -P 2 -I{} scripts/fuzz {} $(or $(FUZZ_SECONDS),30)

format:
	scripts/install_packages lint
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

lint: build/lint/build.ninja
	scripts/install_packages lint
	scripts/lint

clean:
	rm -rf build

# One tree for all that is optimised. A purpose installs its packages and turns its part of
# the tree on, where it stays; the first to come leaves the tests, which need more, off.
new_tree = $(shell [ -e build/release/CMakeCache.txt ] || echo -DMAP_SURROUND_TESTS=OFF)
part_of_demo = $(new_tree)
part_of_test = -DMAP_SURROUND_TESTS=ON
part_of_editor = $(new_tree) -DMAP_SURROUND_EDITOR=ON
part_of_likeness = $(part_of_test)
part_of_surfaces = $(part_of_editor)
part_of_bench = $(new_tree) -DMAP_SURROUND_BENCH=ON

build/release/with-%: CMakePresets.json scripts/install_packages
	scripts/install_packages $*
	cmake --preset release $(part_of_$*) >/dev/null
	touch $@

purpose_of_coverage = coverage
purpose_of_fuzz = fuzz
purpose_of_lint = lint
purpose_of_package = package
purpose_of_threads = library
purpose_of_windows-mingw = windows

build/%/build.ninja: CMakePresets.json scripts/install_packages
	scripts/install_packages $(or $(purpose_of_$*),test)
	cmake --preset $* >/dev/null
	touch $@
