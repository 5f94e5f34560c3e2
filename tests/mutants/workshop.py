"""Where a changed source is compiled, linked with the tests, and tried."""
import collections
import filecmp
import hashlib
import json
import math
import os
import pathlib
import re
import resource
import shlex
import shutil
import subprocess
import threading

# A unit of the test program: the command that compiles it, its object, what it includes.
Unit = collections.namedtuple("Unit", "source command object includes")

KILLED, SURVIVED = "killed", "survived"
SAME = "same"  # the compiler makes the same of it
INVALID = "invalid"  # it does not compile or link
LIMIT = 2 << 30  # bytes of memory, and of what a program may write

# What many sources include, compiled once for the library and once for its tests.
LIBRARY_HEADERS = ("algorithm", "array", "cmath", "cstdint", "cstring", "gdiplus.h", "limits",
                   "new", "optional", "string", "string_view", "utility", "vector")
TEST_HEADERS = (*LIBRARY_HEADERS, "functional", "gmock/gmock.h", "gtest/gtest.h", "memory")

FAMILY_OF_HEADER = {"title": "title_picture", "picture": "title_picture"}


class Workshop:
    """A copy of the sources, built once as they are; a change is made beside it."""

    def __init__(self, root, folder):
        self.source, self.folder = folder / "source", folder
        self.tree = self.source / "build" / "release"
        self._copy_sources(root)
        self._build()
        self.units = self._read_units()
        self.link = self._read_link()
        self.headers = {part: self._compile_headers(part, headers) for part, headers in
                        (("src", LIBRARY_HEADERS), ("tests", TEST_HEADERS))}
        self.filters = self._filters()
        self.killers = collections.defaultdict(collections.Counter)
        self.unchanged = {}
        self.seconds = collections.defaultdict(lambda: 60)
        self._try_unchanged()

    # Making it

    def _copy_sources(self, root):
        listed = subprocess.run(
            ["git", "ls-files", "-co", "--exclude-standard"],
            cwd=root, check=True, capture_output=True, text=True).stdout.split("\n")
        kept, digest = set(), hashlib.sha1()
        for name in sorted(filter(None, listed)):
            original, copy = root / name, self.source / name
            if not original.is_file() or original.suffix == ".png":
                continue
            kept.add(copy)
            digest.update(name.encode() + original.read_bytes())
            if not copy.exists() or not filecmp.cmp(original, copy, shallow=False):
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(original, copy)
        for copy in self.source.rglob("*"):
            if copy.is_file() and copy not in kept and self.tree not in copy.parents:
                copy.unlink()
        self.state = digest.hexdigest()

    def _build(self):
        def run(*command):
            done = subprocess.run(command, cwd=self.source, capture_output=True, text=True)
            if done.returncode != 0:
                raise SystemExit(f"{' '.join(command)}:\n{done.stdout}{done.stderr}")
            return done.stdout

        run("cmake", "--preset", "release", "-DCMAKE_CXX_COMPILER_LAUNCHER=",
            "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld",
            "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON", "-DCMAKE_UNITY_BUILD=OFF",
            *(f"-DMAP_SURROUND_{part}=OFF" for part in ("SHARED", "HOST", "EXAMPLES")))
        run("cmake", "--build", "--preset", "release", "--target", "library_tests")
        self._ninja = lambda *tool: run("ninja", "-C", str(self.tree), "-t", *tool)

    def _read_units(self):
        includes, current = collections.defaultdict(set), None
        for line in self._ninja("deps").splitlines():
            if not line.startswith(" "):
                current = line.partition(":")[0]
            elif str(self.source) in line:
                includes[current].add(os.path.realpath(self.tree / line.strip()))
        linked = self._link_command()
        units = []
        for entry in json.loads((self.tree / "compile_commands.json").read_text()):
            command = shlex.split(entry["command"])
            made = command[command.index("-o") + 1]
            if "map_surround_static.dir" in made or made in linked:
                units.append(Unit(pathlib.Path(entry["file"]), command, made, includes[made]))
        return units

    def _part(self, unit):
        return unit.source.relative_to(self.source).parts[0]

    def _compile_headers(self, part, headers):
        unit = next(unit for unit in self.units if self._part(unit) == part)
        file = self.folder / f"{part}_headers.h"
        file.write_text("".join(f"#include <{header}>\n" for header in headers))
        made = unit.command.index("-o")
        command = [*unit.command[:made], "-w", "-x", "c++-header", str(file), "-o", f"{file}.gch"]
        subprocess.run(command, cwd=self.tree, check=True)
        return file

    def _link_command(self):
        last = self._ninja("commands", "library_tests").strip().split("\n")[-1]
        return shlex.split(last.split(" && ")[1])

    def _read_link(self):
        """The command that links the test program, up to its first object and behind its
        last; the objects of the library stand for its archive."""
        command = self._link_command()
        objects = {unit.object for unit in self.units}
        rest = [word for word in command if word not in objects and "libmap_surround.a" not in word]
        made = rest.index("-o")
        return rest[:made], rest[made + 2 :]

    def _filters(self):
        """The names of the tests of each folder below tests/, as the program takes them."""
        found = collections.defaultdict(set)
        for unit in self.units:
            if self.source / "tests" in unit.source.parents:
                text = unit.source.read_text()
                names = found[unit.source.parent.name]
                for suite in re.findall(r"^TEST(?:_F)?\((\w+),", text, re.MULTILINE):
                    names.add(f"{suite}.*")
                for suite in re.findall(r"^TYPED_TEST_SUITE\((\w+),", text, re.MULTILINE):
                    names.add(f"{suite}/*")
                for prefix in re.findall(r"^INSTANTIATE_\w+_P\(\s*(\w+),", text, re.MULTILINE):
                    names.add(f"{prefix}/*")
        return {family: ":".join(sorted(names)) for family, names in found.items() if names}

    def _try_unchanged(self):
        """How long the tests of a family may take, and all of them."""
        folder = self.folder / "unchanged"
        folder.mkdir(exist_ok=True)
        program = self._link(folder, {}, self.units)
        for family, names in [("", "*"), *self.filters.items()]:
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            killer = self._run(folder, program, names)
            if killer:
                raise SystemExit(f"The tests fail without any change: {killer}")
            used = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before
            self.seconds[family] = math.ceil(2 + 4 * used)

    # Trying a change

    def try_change(self, folder, name, text):
        """What becomes of the tests when this file holds this text, and by what."""
        changed = folder / "changed"
        shutil.rmtree(changed, ignore_errors=True)
        file = changed / pathlib.Path(*pathlib.Path(name).parts[1:])
        file.parent.mkdir(parents=True)
        file.write_text(text)

        family = self.family_of(name)
        original = self.source / name
        touched = [u for u in self.units if u.source == original or str(original) in u.includes]
        near = [u for u in touched if self._is_near(u, family)]
        far = [u for u in touched if not self._is_near(u, family)]
        objects, differs, others = {}, False, "*"
        # Objects that disagree about a header are never linked together.
        for units, linked in ((near, self._near_only(family) if far else self.units),
                              (far, self.units)):
            refused = self._compile(folder, changed, original, file, units, objects)
            if refused:
                # A test that the change keeps from compiling has noticed it.
                noticed = self._part(refused) == "tests"
                return (KILLED, f"{refused.source.name} does not compile") if noticed \
                    else (INVALID, "")
            differs = differs or any(self._differs(unit, objects) for unit in units)
            if not differs:
                continue
            program = self._link(folder, objects, linked)
            if not program:
                return INVALID, ""
            if units is near and family in self.filters:
                killer = self._run_family(folder, program, name, family)
                others = f"*-{self.filters[family]}"
                if killer:
                    return KILLED, killer
        if not differs:
            return SAME, ""
        killer = self._run(folder, program, others)
        return (KILLED, killer) if killer else (SURVIVED, "")

    def _run_family(self, folder, program, name, family):
        """The tests of the family, those first that noticed most in this file so far."""
        for names in [":".join(test for test, _ in self.killers[name].most_common(5)),
                      self.filters[family]]:
            killer = self._run(folder, program, names, family) if names else ""
            if killer:
                if not killer.startswith("ended"):
                    self.killers[name][killer] += 1
                return killer
        return ""

    def family_of(self, name):
        path = pathlib.Path(name)
        if path.parts[0] == "include":
            return FAMILY_OF_HEADER.get(path.stem, path.stem)
        return path.parts[1]

    def _near_only(self, family):
        return [unit for unit in self.units if self._is_near(unit, family)]

    def _is_near(self, unit, family):
        place = unit.source.relative_to(self.source).parts
        return place[0] == "src" or place[1] in ("recording", family)

    def _compile(self, folder, changed, original, file, units, objects):
        """Adds to the objects; the unit that does not compile, if there is one."""
        for unit in units:
            made = folder / f"{threading.get_ident()}-{len(objects)}-{unit.source.name}.o"
            command = [str(file) if word == str(original) else word for word in unit.command]
            command[command.index("-o") + 1] = str(made)
            # What is changed stands before what it is changed from.
            command[1:1] = [f"-I{changed}", "-w", "-Wno-narrowing",
                            "-include", str(self.headers[self._part(unit)])]
            if subprocess.run(command, cwd=self.tree, capture_output=True).returncode != 0:
                return unit
            objects[unit.object] = str(made)
        return None

    def _differs(self, unit, objects):
        """From what is made of the unit in the same way without the change."""
        if unit.object not in self.unchanged:
            folder = self.folder / "unchanged"
            made = {}
            self._compile(folder, folder, unit.source, unit.source, [unit], made)
            kept = folder / unit.object.replace("/", "_")
            shutil.move(made[unit.object], kept)
            self.unchanged[unit.object] = kept
        return not filecmp.cmp(self.unchanged[unit.object], objects[unit.object], shallow=False)

    def _link(self, folder, objects, units):
        program = folder / "library_tests"
        head, tail = self.link
        names = [objects.get(unit.object, unit.object) for unit in units]
        command = [*head, *names, "-o", str(program), *tail]
        done = subprocess.run(command, cwd=self.tree, capture_output=True)
        return program if done.returncode == 0 else None

    def _run(self, folder, program, names, family=""):
        """The test that failed first, or how the program ended; empty when all passed."""
        seconds = self.seconds[family]

        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
            resource.setrlimit(resource.RLIMIT_AS, (LIMIT, LIMIT))
            resource.setrlimit(resource.RLIMIT_FSIZE, (LIMIT // 64, LIMIT // 64))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        log = folder / "log"
        command = [program, "--gtest_fail_fast", f"--gtest_filter={names}"]
        with open(log, "wb") as output:
            try:
                code = subprocess.run(
                    command, cwd=folder, stdin=subprocess.DEVNULL, stdout=output,
                    stderr=subprocess.DEVNULL, preexec_fn=limit,
                    timeout=10 * seconds).returncode
            except subprocess.TimeoutExpired:
                return "ended by no end"
        if code == 0:
            return ""
        told = log.read_text(errors="replace")
        failed = re.search(r"^\[  FAILED  \] (\S+)", told, re.MULTILINE)
        if failed:
            return failed.group(1).rstrip(",")
        begun = re.findall(r"^\[ RUN      \] (\S+)", told, re.MULTILINE)
        return f"ended by {code} in {begun[-1] if begun else 'no test'}"
