"""Makes sampled small faults in the sources of one room, and says which of them no test notices."""

import argparse
import contextlib
import dataclasses
import fcntl
import json
import os
import pathlib
import queue
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading
import time

import faults

TREE = pathlib.Path(__file__).resolve().parents[2]
WORK = TREE / "build" / "mutants"
ACCEPTED = "tests/mutants_accepted"
WANTED = 97  # per cent


SLOW = 0.2  # seconds: a test that takes longer waits until the others have noticed nothing

COMP = ("comp_test", "comp_allocation_test")
# A soak finds races by going on for long: against one fault in many, a second of it is as good.
ENVIRONMENT = {"CDS_SOAK_SECONDS": "1", "NV_SOAK_SECONDS": "1"}

# Its sources, and the programs that test them: first the room's own, then those of rooms that stand on it.
ROOMS = {
    "comp": (("lib/**/*",), COMP + ("pool_test",)),
    "platform": (
        ("platform/vt/*", "platform/units/*", "platform/iso11783/*"),
        ("platform_test",) + COMP + ("pool_test",),
    ),
    "cds": (("platform/cds/*", "platform/threads/*"), ("cds_test",) + COMP + ("nv_store_test",)),
    "nv_store": (("platform/nv_store/*",), ("nv_store_test",) + COMP),
    "util": (("util/*",), COMP + ("pool_test",)),
    "pool": (("pool/*",), ("pool_test",)),
    "terminal": (("terminal/*",), ("terminal_test", "pool_test")),
    "draw": (("terminal/draw/*",), ("terminal_draw_test", "gallery_test")),
    "web": (("terminal/web/*",), ("terminal_web_test",)),
}


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str
    line: int
    begin: int
    end: int
    old: str
    new: str
    kind: str
    before: str  # the lines it is in, with single blanks
    after: str

    def identity(self):
        """What stays the same when lines move."""
        return self.path, self.before, self.after

    def where(self):
        return f"{self.path}:{self.line}: {plain(self.old) or 'nothing'} → {plain(self.new) or 'nothing'}"

    def block(self):
        """How it stands in the list of survivors, and with a reason below it in that of the accepted ones."""
        return f"{self.path}\n    - {self.before}\n    + {self.after}\n"


def plain(text):
    return " ".join(text.split())


def source(path):
    return (TREE / path).read_text(encoding="utf-8")


def room_paths(room):
    paths = {path for pattern in ROOMS[room][0] for path in TREE.glob(pattern) if path.suffix in (".cpp", ".h")}
    return sorted(str(path.relative_to(TREE)) for path in paths)


def room_sites(room, only):
    """All the sites of a room, each as the list of mutants that it can become."""
    result = []
    for path in room_paths(room):
        text = source(path)
        header = TREE / path.replace(".cpp", ".h")
        words = re.findall(r"\w+", header.read_text(encoding="utf-8")) if header.exists() else ()
        lines = faults.Lines(text)
        for site in faults.sites(text, words):
            line = lines.number(site.begin)
            if only and not (path.endswith(only[0]) and only[1] in (None, line)):
                continue
            first, last = lines.around(site.begin, site.end)
            mutants = []
            for new in site.replacements:
                after = plain(text[first : site.begin] + new + text[site.end : last])
                mutants.append(
                    Mutant(
                        path, line, site.begin, site.end, text[site.begin : site.end], new, site.kind,
                        plain(text[first:last]), after,
                    )
                )
            result.append(mutants)
    return result


def sample(sites, count, seed):
    """One mutant of each of so many sites; the same for the same sites and seed."""
    chance = random.Random(seed)
    return [chance.choice(mutants) for mutants in chance.sample(sites, min(count, len(sites)))]


def accepted_blocks():
    """Path, line before and line after, of each entry of the list, which stand in blocks with empty lines between."""
    path = TREE / ACCEPTED
    if not path.exists():
        return set()
    blocks = set()
    for block in re.split(r"\n\s*\n", path.read_text(encoding="utf-8")):
        lines = [line.strip() for line in block.splitlines() if line.strip() and not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4 or [line[:2] for line in lines if line[:2] in ("- ", "+ ")] != ["- ", "+ "]:
            sys.exit(f"mutants: {ACCEPTED}: this is not one path, one line with -, one with + and a reason:\n{block}")
        blocks.add((lines[0], plain(lines[1][1:]), plain(lines[2][1:])))
    return blocks


class Worker:
    """A copy of the tree, built in a folder of its own: one mutant at a time is made in it, and taken back."""

    def __init__(self, number, programs):
        self.folder = WORK / str(number)
        self.copy = self.folder / "tree"
        self.build = self.folder / "build"
        self.kept = self.folder / "kept"
        self.programs = programs
        self.runs = {}
        self.running = None

    # The copy, and what it becomes when it is built.

    def follow_tree(self):
        """Copies what differs, so that only that is built again."""
        listed = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=TREE, check=True, capture_output=True, text=True,
        ).stdout
        wanted = {name for name in listed.split("\0") if name and (TREE / name).is_file()}
        for name in wanted:
            ours, theirs = self.copy / name, TREE / name
            if not ours.exists() or ours.read_bytes() != theirs.read_bytes():
                ours.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(theirs, ours)
        for ours in self.copy.rglob("*"):
            if ours.is_file() and str(ours.relative_to(self.copy)) not in wanted:
                ours.unlink()

    def prepare(self, jobs):
        """Builds without a fault, runs the tests without one, and keeps what was built."""
        self.follow_tree()
        self.build.mkdir(parents=True, exist_ok=True)
        configure = [
            "cmake", "-G", "Ninja", "-S", self.copy, "-B", self.build, "--compile-no-warning-as-error",
            "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-w -D_GLIBCXX_ASSERTIONS",
            "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST",
            f"-DCMAKE_CXX_COMPILER_LAUNCHER={shutil.which('ccache') or ''}",
        ]
        self.expect(*self.run(configure, 600), "cannot be configured")
        for _ in range(2):  # what an interrupted run has left unfinished in ninja's notes shows at the second time
            self.expect(*self.run(["ninja", "-C", self.build, f"-j{jobs}", *self.programs], 7200), "does not build")
        for program in self.programs:
            times = self.folder / "times.json"
            status, output = self.run_test(program, 600, "*", times)
            self.expect(status, output, f"fails without any fault: {program}: {how_it_ended(status, output)}")
            self.runs[program] = quick_and_slow(times)
        self.keep()

    def expect(self, status, output, what):
        if status != 0:
            sys.exit(f"{output[-4000:]}\nmutants: the tree {what}")

    def built(self):
        """All that a command has made, and ninja's own notes."""
        names = {line.split("\t")[3] for line in (self.build / ".ninja_log").read_text().splitlines() if "\t" in line}
        return [name for name in names if (self.build / name).is_file()] + [".ninja_log", ".ninja_deps"]

    def keep(self):
        for name in self.built():
            self.put(self.build / name, self.kept / name)

    def put(self, origin, target):
        """With its time. What has the same time and size is the same."""
        new = origin.stat()
        if target.exists():
            old = target.stat()
            if (old.st_mtime_ns, old.st_size) == (new.st_mtime_ns, new.st_size):
                return
            target.unlink()
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(origin, target)

    @contextlib.contextmanager
    def mutated(self, mutant):
        """Afterwards all is as ninja knew it before: nothing needs to be built to take the fault back."""
        path = self.copy / mutant.path
        times = path.stat()
        text = path.read_text(encoding="utf-8")
        if text[mutant.begin : mutant.end] != mutant.old:
            raise RuntimeError(f"{mutant.path} was edited meanwhile: start again")
        path.write_text(text[: mutant.begin] + mutant.new + text[mutant.end :], encoding="utf-8")
        try:
            yield
            for name in self.built():
                if (self.kept / name).exists():
                    self.put(self.kept / name, self.build / name)
                else:
                    (self.build / name).unlink()
        finally:
            path.write_text(text, encoding="utf-8")
        # Only now: if anything went wrong on the way here, ninja has to look at the file again.
        os.utime(path, ns=(times.st_atime_ns, times.st_mtime_ns))

    # One mutant.

    def judge(self, mutant):
        """Who noticed it, or "" if nobody did, or None if it is no program."""
        with self.mutated(mutant):
            for program in self.programs:
                status, output = self.run(["ninja", "-C", self.build, "-j1", program], 1800)
                if status != 0:
                    return "the compiler: static_assert" if "static assertion failed" in output else None
                for tests, seconds in self.runs[program]:
                    status, output = self.run_test(program, 3 * seconds + 10, tests)
                    if status != 0 or "[  PASSED  ]" not in output:
                        return f"{program}: {how_it_ended(status, output)}"
        return ""

    def run_test(self, program, seconds, tests, times=None):
        """With bounded memory, a folder of its own for what it writes, and less processor time than time: a loop
        without end is stopped soon, and a test that a busy machine lets wait is not."""
        scratch = self.folder / "scratch"
        shutil.rmtree(scratch, ignore_errors=True)
        scratch.mkdir()
        processor = int(seconds) - 8
        # Of files only the soft limit, as a test sets its own.
        command = [
            "prlimit", "--core=0", f"--as={4 << 30}", f"--fsize={1 << 30}:", f"--cpu={processor}:{processor + 1}",
            self.build / program, "--gtest_brief=1", "--gtest_fail_fast", "--gtest_color=no", f"--gtest_filter={tests}",
        ]
        if times:
            command.append(f"--gtest_output=json:{times}")
        return self.run(command, seconds, scratch, {"TMPDIR": str(scratch), **ENVIRONMENT})

    def run(self, command, seconds, folder=None, environment={}):
        """Its exit status and output. It ends with all that it started."""
        if stopping.is_set():
            raise Stopped
        # Objects of one worker serve the other, and a later run.
        caching = {
            "CCACHE_BASEDIR": str(self.folder), "CCACHE_NOHASHDIR": "1", "CCACHE_DEPEND": "1",
            "CCACHE_SLOPPINESS": "pch_defines,time_macros,include_file_mtime,include_file_ctime",
        }
        process = subprocess.Popen(
            [str(word) for word in command], cwd=folder or self.folder, env={**os.environ, **caching, **environment},
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
        )
        self.running = process
        try:
            output, _ = process.communicate(timeout=seconds)
            status = process.returncode
        except subprocess.TimeoutExpired:
            status, output = OUT_OF_TIME, b""
        finally:
            self.stop()
            self.running = None
        if stopping.is_set():
            raise Stopped
        return status, output.decode(errors="replace")

    def stop(self):
        process = self.running
        if process:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def quick_and_slow(times):
    """A GoogleTest filter for each, with the seconds that its tests took."""
    quick, slow, names = 0.0, 0.0, []
    for suite in json.loads(times.read_text(encoding="utf-8"))["testsuites"]:
        for test in suite["testsuite"]:
            seconds = float(test["time"].rstrip("s"))
            if seconds > SLOW:
                slow += seconds
                names.append(f"{suite['name']}.{test['name']}")
            else:
                quick += seconds
    listed = ":".join(names)
    return [("-" + listed, quick), (listed, slow)] if names else [("*", quick)]


OUT_OF_TIME = -1000
stopping = threading.Event()


class Stopped(Exception):
    """The user wants it to end."""


def how_it_ended(status, output):
    failed = re.findall(r"^\[  FAILED  \] ([\w./]+)", output, re.MULTILINE)
    if failed:
        return failed[0]
    if status == OUT_OF_TIME or status == -signal.SIGXCPU:
        return "no end"
    return signal.Signals(-status).name if status < 0 else f"ended with {status}"


def processor_time():
    """Of all the commands so far that have ended."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


class Report:
    def __init__(self, room, total, equivalent):
        self.room, self.total = room, total
        self.lock = threading.Lock()
        self.begin = processor_time()
        self.killed, self.equivalent, self.not_compiled = 0, equivalent, 0
        self.survivors = []

    def add(self, mutant, judgement, seconds):
        with self.lock:
            if judgement is None:
                self.not_compiled += 1
            elif judgement == "":
                self.survivors.append(mutant)
            else:
                self.killed += 1
            word = "does not compile" if judgement is None else "killed" if judgement else "SURVIVED"
            print(f"[{self.done():3}/{self.total}] {word:8} {mutant.where()}", end="")
            print(f"  ({judgement + ', ' if judgement else ''}{seconds:.1f} s)", flush=True)

    def done(self):
        return self.killed + self.equivalent + self.not_compiled + len(self.survivors)

    def close(self):
        """Says what came out, and whether it is enough."""
        survivors = sorted(self.survivors, key=lambda mutant: (mutant.path, mutant.line))
        path = WORK / f"{self.room}.txt"
        path.write_text("\n".join(mutant.block() for mutant in survivors), encoding="utf-8")
        if survivors:
            print("\nNo test noticed:")
        for mutant in survivors:
            print(f"{mutant.where()}\n    - {mutant.before}\n    + {mutant.after}")
        counted = self.killed + len(survivors)
        part = 100 * self.killed / counted if counted else 100
        print(f"\n{self.room}: killed {self.killed} of {self.done()} ", end="")
        print(f"({self.equivalent} equivalent, {self.not_compiled} did not compile): {part:.1f} %")
        ran = self.done() - self.equivalent
        if ran:
            print(f"{(processor_time() - self.begin) / ran:.1f} s of processor time for each that ran; ", end="")
        print(f"the survivors are in {path.relative_to(TREE)}")
        return part >= WANTED


def work(worker, waiting, report, problems):
    try:
        while True:
            mutant = waiting.get_nowait()
            begin = time.monotonic()
            judgement = worker.judge(mutant)
            report.add(mutant, judgement, time.monotonic() - begin)
    except (queue.Empty, Stopped):
        pass
    except BaseException as problem:  # which ends the run, told by the main thread
        problems.append(problem)
        stopping.set()


def run_all(workers, mutants, report):
    waiting = queue.SimpleQueue()
    for mutant in mutants:
        waiting.put(mutant)
    problems = []
    threads = [threading.Thread(target=work, args=(worker, waiting, report, problems)) for worker in workers]
    for thread in threads:
        thread.start()
    try:
        for thread in threads:
            thread.join()
    except KeyboardInterrupt:
        print("\nmutants: stopping", flush=True)
        stopping.set()
        for worker in workers:
            worker.stop()
        for thread in threads:
            thread.join()
    if problems:
        raise problems[0]


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutants", description=__doc__)
    parser.add_argument("room", metavar="ROOM", choices=ROOMS, help=", ".join(ROOMS))
    parser.add_argument("count", metavar="N", nargs="?", type=int, help="how many faults (60, with --only all)")
    parser.add_argument("--seed", default="1", help="draws another sample (1)")
    parser.add_argument("--list", action="store_true", help="show all the faults that could be made, and make none")
    parser.add_argument("--only", metavar="FILE[:LINE]", help="only there; FILE is the end of a path, such as .cpp")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="how many at a time, each in its own copy")
    return parser.parse_args()


def main():
    wanted = arguments()
    only = None
    if wanted.only:
        file, _, line = wanted.only.partition(":")
        only = (file, int(line) if line else None)
    sites = room_sites(wanted.room, only)
    if wanted.list:
        for mutants in sites:
            for mutant in mutants:
                print(f"{mutant.where()}  ({mutant.kind})")
        print(f"{len(sites)} sites, {sum(map(len, sites))} mutants")
        return 0

    accepted = accepted_blocks()
    possible = {mutant.identity() for mutants in sites for mutant in mutants}
    for path, before, after in sorted(accepted - possible):
        if not only and (path in room_paths(wanted.room) or not (TREE / path).exists()):
            print(f"stale in {ACCEPTED}: {path}: {before} → {after}")
    mutants = sum(sites, []) if only and not wanted.count else sample(sites, wanted.count or 60, wanted.seed)
    mutants.sort(key=lambda mutant: mutant.path.endswith(".h"))  # at the end, as each takes long to build
    to_run = [mutant for mutant in mutants if mutant.identity() not in accepted]
    equivalent = len(mutants) - len(to_run)
    print(f"{wanted.room}: {len(mutants)} faults, seed {wanted.seed}, of {len(sites)} places; {equivalent} are accepted")

    WORK.mkdir(parents=True, exist_ok=True)
    with open(WORK / "lock", "w") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            sys.exit("mutants: it is running in this tree already")
        workers = [Worker(number + 1, ROOMS[wanted.room][1]) for number in range(min(wanted.jobs, len(to_run)))]
        for worker in workers:
            print(f"building without a fault in {worker.folder.relative_to(TREE)}", flush=True)
            worker.prepare(wanted.jobs)
            for program, runs in worker.runs.items():
                print(f"    {program}: " + ", then ".join(f"{seconds:.1f} s" for _, seconds in runs))
        report = Report(wanted.room, len(mutants), equivalent)
        run_all(workers, to_run, report)
        enough = report.close()
    return 130 if stopping.is_set() else 0 if enough else 1


def interrupt(*_):
    raise KeyboardInterrupt


if __name__ == "__main__":
    signal.signal(signal.SIGTERM, interrupt)
    signal.signal(signal.SIGHUP, interrupt)
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)
