#!/usr/bin/env python3
"""Breaks lines of src on purpose, one at a time, and tells which breaks no test notices.

    tools/mutate.py [--files 'src/measure/*.cpp' ...] [--changed REV] [--minutes 20] [--name before]
    tools/mutate.py --compare before after
    tools/mutate.py --matrix

All breaks ("mutants") are built in at once and switched by an environment variable, so that there
is one build (without sanitizers, in build/mutate, kept for the next run). Kinds: a statement left
out, a condition negated, a part of it dropped, a comparison made strict or loose, true and false
exchanged. Each mutant is tried by the tests that reach it, quickest first; a test fails, crashes,
or takes far too long: noticed. Prints the mutants that went unnoticed by file and line.

--files    the sources to break (patterns); --changed REV: only lines that differ from this commit
--minutes  stops after so long; the next run under the same name goes on where this one stopped,
           until sources or tests change
--name     keeps the results under this name, in build/mutate/results/NAME.jsonl
--compare  of two runs: what was noticed in the first and not in the second (these make it fail),
           what is noticed now, and what the second one did not try. Mutants are the same when file,
           kind and text are the same, whatever their line.
--matrix   tries every reaching test on a sample of the noticed mutants and lists tests whose finds
           others have as well: places to look when tests are to become fewer, not a verdict (the
           simulator is not broken, for one)
--fresh    throws build and results away first

tools/mutate-exempt.txt lists what need not be noticed, one a line: file, kind, text, reason
("equivalent" or "looks", and why), parted by " | ". It means the first such line of the file; behind
the text " #2" means the second one, " #all" each. A row that matches nothing any more is told."""
import argparse, collections, fnmatch, glob, hashlib, json, os, random, re, shutil, subprocess, sys, time

ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
ap.add_argument("--files", nargs="*", default=["src/*/*.cpp"])
ap.add_argument("--changed", metavar="REV")
ap.add_argument("--minutes", type=float, default=20)
ap.add_argument("--name", default="last")
ap.add_argument("--compare", nargs=2, metavar=("BEFORE", "AFTER"))
ap.add_argument("--matrix", action="store_true")
ap.add_argument("--fresh", action="store_true")
ap.add_argument("--jobs", type=int, default=2)
A = ap.parse_args()
ROOT = subprocess.run(["git", "rev-parse", "--show-toplevel"], capture_output=True, text=True, check=True).stdout.strip()
OUT = os.path.join(ROOT, "build", "mutate"); TREE, BUILD = os.path.join(OUT, "tree"), os.path.join(OUT, "build")
if A.fresh: shutil.rmtree(OUT, ignore_errors=True)
os.makedirs(TREE, exist_ok=True); os.makedirs(os.path.join(OUT, "results"), exist_ok=True)
ID = "A-Za-z0-9_äöüÄÖÜß"
HEADER = r'''#pragma once
#include <cstdio>
#include <cstdlib>
namespace mutation {
inline constexpr int most = 20000;
struct State {
    int active = 0;
    unsigned char reached[most] = {};
    State() { if (const char *e = std::getenv("MUTANT")) active = std::atoi(e); }
    ~State() {
        const char *e = std::getenv("MUTANT_TRACE");
        if (!e) return;
        if (std::FILE *f = std::fopen(e, "a")) {
            for (int i = 0; i < most; ++i) if (reached[i]) std::fprintf(f, "%d ", i);
            std::fclose(f);
        }
    }
};
inline State state;
inline bool is(int n) { state.reached[n] = 1; return state.active == n; }
}
#define MUTDEL(n, ...) do { if (!mutation::is(n)) { __VA_ARGS__; } } while (0)
#define MUTNEG(n, ...) (mutation::is(n) != static_cast<bool>(__VA_ARGS__))
#define MUTT(n, ...) (mutation::is(n) || static_cast<bool>(__VA_ARGS__))
#define MUTF(n, ...) (!mutation::is(n) && static_cast<bool>(__VA_ARGS__))
#define MUTRET(n, a, b) (mutation::is(n) ? (b) : (a))
'''
KEYWORDS = set("return if for while do switch case break continue throw using namespace const constexpr static auto else try catch default "
               "public private protected class struct enum template friend typedef extern explicit virtual delete new inline".split())
STATEMENT = re.compile(r"^( {4,})(\+\+|--|\*)?([A-Za-z_äöüÄÖÜß][%s:.\->\[\]]*?)(\(| [-+*/|&]?= |\+\+;|;)" % ID)
FLIP = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}


def mask(s):
    """the same length, with what stands in strings, characters and comments blanked"""
    out, i, n = list(s), 0, len(s)
    while i < n:
        c = s[i]
        if s.startswith("//", i):
            while i < n and s[i] != "\n": out[i] = " "; i += 1
            continue
        if s.startswith("/*", i):
            while i < n and not s.startswith("*/", i):
                if s[i] != "\n": out[i] = " "
                i += 1
            continue
        if s.startswith('R"(', i):
            j = s.index(')"', i)
            for k in range(i + 3, j): out[k] = "\n" if s[k] == "\n" else "x"
            i = j + 2; continue
        if c == '"' or (c == "'" and not (i and s[i - 1].isdigit() and s[i + 1:i + 2].isdigit())):
            q = c; i += 1
            while s[i] != q:
                if s[i] == "\\": out[i] = "x"; i += 1
                out[i] = "x"; i += 1
        i += 1
    return "".join(out)


def closing(m, i):
    d = 0
    for j in range(i, len(m)):
        if m[j] in "([{": d += 1
        elif m[j] in ")]}":
            d -= 1
            if d == 0: return j
    return -1


def closing_open(m, i):
    """within brackets there"""
    return sum((c in "([{") - (c in ")]}") for c in m[:i]) > 0


def at_top(m, tok):
    d = 0
    for i, c in enumerate(m):
        if c in "([{": d += 1
        elif c in ")]}": d -= 1
        elif d == 0 and m.startswith(tok, i): return True
    return False


class Breaker:
    def __init__(self, leave): self.mutants, self.leave = [], leave

    def new(self, kind, text):
        if (self.file, self.line, kind) in self.leave: return 0
        self.mutants.append({"id": len(self.mutants) + 1, "kind": kind, "file": self.file, "line": self.line, "text": " ".join(text.split())[:150]})
        return len(self.mutants)

    def compare(self, s, m):
        found = list(re.finditer(r" (<=|>=|<|>) ", m))
        if len(found) != 1 or any(x in m for x in ("?", "&&", "||", " = ", "{")): return s
        p = found[0]
        if m[:p.start()].count("(") != m[:p.start()].count(")"): return s
        op = p.group(1); n = self.new("compare", f"{s}  -> {FLIP[op]}")
        l, r = s[:p.start()].strip(), s[p.end():].strip()
        return f"MUTRET({n}, ({l} {op} {r}), ({l} {FLIP[op]} {r}))" if n else s

    def condition(self, s, m):
        both = at_top(m, "&&"), at_top(m, "||")
        if at_top(m, "?"): return s
        if not any(both): return self.compare(s, m)
        if all(both): return s
        op = "&&" if both[0] else "||"
        parts, d, last, i = [], 0, 0, 0
        while i < len(m):
            if m[i] in "([{": d += 1
            elif m[i] in ")]}": d -= 1
            elif d == 0 and m.startswith(op, i): parts.append((last, i)); last = i + 2; i += 1
            i += 1
        parts.append((last, len(m))); out = []
        for a, b in parts:
            n = self.new("drop", s[a:b]); inner = self.compare(s[a:b], m[a:b]).strip()
            out.append(f"{'MUTT' if op == '&&' else 'MUTF'}({n}, {inner})" if n else inner)
        return f" {op} ".join(out)

    def source(self, file, s):
        self.file = file; m = mask(s); rows = s.split("\n"); starts = [0]
        for r in rows: starts.append(starts[-1] + len(r) + 1)
        edits = []
        for k, row in enumerate(rows):
            pos, self.line = starts[k], k + 1; mr = m[pos:pos + len(row)]
            f = re.match(r"^\s*(?:\} )?(?:else )?(if|while) \(", mr)
            if f:
                o = pos + f.end() - 1; c = closing(m, o); cs, cm = s[o + 1:c], m[o + 1:c]
                if "{" in cm or at_top(cm, ";") or at_top(re.sub(r"[<>!=]=", "  ", cm), "="): continue
                body = self.condition(cs, cm)
                if f.group(1) == "if":
                    n = self.new("negate", cs)
                    if n: body = f"MUTNEG({n}, {body})"
                edits.append((o + 1, c, body)); continue
            f = re.match(r"^(\s*)return (true|false);$", mr)
            if f:
                n = self.new("return", row); v = f.group(2)
                if n: edits.append((pos, pos + len(row), f"{f.group(1)}return MUTRET({n}, {v}, {'false' if v == 'true' else 'true'});"))
                continue
            f = re.match(r"^(\s*)(return|const bool [%s]+ =) " % ID, mr)
            if f:
                e, d, j = pos + f.end(), 0, pos + f.end()
                while j < len(m) and not (m[j] == ";" and d == 0):
                    d += (m[j] in "([{") - (m[j] in ")]}"); j += 1
                if ("&&" in m[e:j] or "||" in m[e:j]) and "{" not in m[e:j] and not at_top(m[e:j], "?"): edits.append((e, j, self.condition(s[e:j], m[e:j])))
                continue
            f = STATEMENT.match(mr)
            if not f or re.match(r"[%s]+" % ID, f.group(3)).group(0) in KEYWORDS: continue
            a = j = pos + len(f.group(1)); d = 0
            while j < len(m):
                if m[j] in "([{": d += 1
                elif m[j] in ")]}":
                    d -= 1
                    if d < 0: break
                elif d == 0 and m[j] in ";,": break
                j += 1
            if j >= len(m) or m[j] != ";" or d != 0: continue
            tm = m[a:j]
            if re.match(r"^[%s:<>]+ [%s&*]+" % (ID, ID), tm) and not re.match(r"^[^ ]+ [-+*/|&]?= ", tm): continue
            if any(tm[i] == "{" and tm[:i].rstrip().endswith(")") and not closing_open(tm, i) for i in range(len(tm))): continue
            if re.search(r"= (delete|default)$", tm) or re.match(r"^[^=(]*\{", tm): continue
            b = k - 1
            while b >= 0 and not m[starts[b]:starts[b] + len(rows[b])].strip(): b -= 1
            before = m[starts[b]:starts[b] + len(rows[b])].rstrip() if b >= 0 else ""
            if not before.endswith((";", "{", "}", ":", ")", "else")): continue
            n = self.new("leave out", s[a:j])
            if n: edits += [(a, a, f"MUTDEL({n}, "), (j, j, ")")]
        out, last = [], 0
        for a, b, t in sorted(edits, key=lambda e: e[:2]):
            if a < last: continue
            out += [s[last:a], t]; last = b
        return f'#include "{OUT}/mutation.h"\n#line 1\n' + "".join(out) + s[last:]


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if not os.path.exists(path) or open(path, encoding="utf-8").read() != text: open(path, "w", encoding="utf-8").write(text)


def copy_tree():
    names = subprocess.run(["git", "-C", ROOT, "ls-files", "-coz", "--exclude-standard"], capture_output=True, text=True).stdout.split("\0")
    print_of = hashlib.sha256()
    for n in filter(None, names):
        src = os.path.join(ROOT, n)
        if not os.path.isfile(src): continue
        data = open(src, "rb").read()
        if n.endswith((".cpp", ".h", ".ui", ".cmake", ".sql", "CMakeLists.txt")): print_of.update(n.encode() + data)
        if n.startswith("src/") and n.endswith(".cpp") and not n.endswith("/main.cpp"): continue
        dst = os.path.join(TREE, n); os.makedirs(os.path.dirname(dst), exist_ok=True)
        if not os.path.exists(dst) or open(dst, "rb").read() != data: open(dst, "wb").write(data)
    for d, _, there in os.walk(TREE):
        for n in there:
            if not os.path.isfile(os.path.join(ROOT, os.path.relpath(os.path.join(d, n), TREE))): os.remove(os.path.join(d, n))
    return [n for n in names if os.path.isfile(os.path.join(ROOT, n)) and n.startswith("src/") and n.endswith(".cpp") and not n.endswith("/main.cpp")], print_of.hexdigest()


def build(files):
    leave_file = os.path.join(OUT, "leave.json")
    leave = {tuple(x) for x in json.load(open(leave_file))} if os.path.exists(leave_file) else set()
    write(os.path.join(OUT, "mutation.h"), HEADER)
    for attempt in range(12):
        b = Breaker(leave)
        for f in files: write(os.path.join(TREE, f), b.source(f, open(os.path.join(ROOT, f), encoding="utf-8").read()))
        if not os.path.exists(os.path.join(BUILD, "build.ninja")):
            subprocess.run(["cmake", "-S", TREE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -w", "-DTORVENA_TESTS=ON"], check=True, stdout=subprocess.DEVNULL)
        r = subprocess.run(["cmake", "--build", BUILD, f"-j{A.jobs}", "--", "-k", "0"], capture_output=True, text=True)
        if r.returncode == 0: return b.mutants
        tests = set(re.findall(r"^FAILED: tests/CMakeFiles/(test_\w+)\.dir", r.stdout, re.M))
        if tests and not re.search(r"^FAILED: (?!tests/CMakeFiles/test_)", r.stdout, re.M):
            for t in tests:
                print("does not build, left out:", t, flush=True)
                if os.path.exists(os.path.join(BUILD, "tests", t)): os.remove(os.path.join(BUILD, "tests", t))
            return b.mutants
        wrong = {(os.path.relpath(m.group(1), TREE), int(m.group(2))) for m in re.finditer(r"^(/[^:\n]+\.cpp):(\d+):\d+: error", r.stdout, re.M)}
        near = {(f, n) for f, l in wrong for n in range(l - 6, l + 2)} if attempt > 3 else wrong | {(f, l - 1) for f, l in wrong}
        more = {(m["file"], m["line"], m["kind"]) for m in b.mutants if (m["file"], m["line"]) in near}
        if not more - leave: more = {(m["file"], m["line"], m["kind"]) for m in b.mutants if m["file"] in {f for f, _ in wrong}}
        if not more - leave: sys.exit("the broken tree does not build:\n" + r.stdout[-3000:])
        leave |= more; json.dump(sorted(leave), open(leave_file, "w"))
        print(f"{len(more)} mutants do not compile and are left out; building again", flush=True)
    sys.exit("the broken tree does not build")


ENV = dict(os.environ, QT_QPA_PLATFORM="offscreen"); ENV.pop("MUTANT", None)


def programs(): return [p for p in sorted(glob.glob(BUILD + "/tests/test_*")) if os.path.isfile(p) and os.access(p, os.X_OK)]


def run(tests, mutant=0, trace=None, fast=True, seconds=60):
    """-> tests that fail, all of one program"""
    prog = tests[0].split(":")[0]
    env = dict(ENV, MUTANT=str(mutant))
    if trace: env["MUTANT_TRACE"] = trace
    cmd = [os.path.join(BUILD, "tests", prog), "--gtest_filter=" + ":".join(t.split(":", 1)[1] for t in tests)] + (["--gtest_fail_fast"] if fast else [])
    try: r = subprocess.run(cmd, env=env, capture_output=True, timeout=seconds, cwd=OUT); out, rc = r.stdout.decode("utf-8", "replace"), r.returncode
    except subprocess.TimeoutExpired as e: out, rc = (e.stdout or b"").decode("utf-8", "replace"), 1
    if rc == 0: return []
    failed = [f"{prog}:{x.rstrip(',')}" for x in re.findall(r"\[  FAILED  \] (\S+?),? ?(?:where.*)?\(\d+ ms\)", out)]
    begun = re.findall(r"\[ RUN      \] (\S+)", out)
    return failed or ([f"{prog}:{begun[-1]}"] if begun else [tests[0]])


def trace(stamp):
    path = os.path.join(OUT, "trace.json")
    t = json.load(open(path)) if os.path.exists(path) else {}
    if t.get("stamp") == stamp: return t["tests"]
    tests = {}
    for p in programs():
        suite = ""
        for l in subprocess.run([p, "--gtest_list_tests"], env=ENV, capture_output=True, text=True).stdout.split("\n"):
            l = l.split("#")[0].rstrip()
            if not l or l.startswith("Running main"): continue
            if not l.startswith(" "): suite = l; continue
            name = f"{os.path.basename(p)}:{suite}{l.strip()}"; mark = os.path.join(OUT, "reached")
            if os.path.exists(mark): os.remove(mark)
            t0 = time.time(); bad = run([name], trace=mark, seconds=180)
            if bad: print("fails without any break, left out:", name, flush=True); continue
            tests[name] = {"s": round(time.time() - t0, 2), "reach": sorted({int(x) for x in open(mark).read().split()}) if os.path.exists(mark) else []}
    json.dump({"stamp": stamp, "tests": tests}, open(path, "w"))
    return tests


def key(m): return m["file"], m["kind"], m["text"], m.get("nth", 0)


def results(name):
    """-> stamp, {key: result} of a run"""
    path = os.path.join(OUT, "results", name + ".jsonl")
    rows = [json.loads(l) for l in open(path, encoding="utf-8")] if os.path.exists(path) else [{}]
    return rows[0].get("stamp"), {key(r): r for r in rows[1:]}


def exempt():
    """-> {(file, kind, text, which): reason}, which from 0, None for all"""
    path = os.path.join(ROOT, "tools", "mutate-exempt.txt"); rows = {}
    for l in open(path, encoding="utf-8") if os.path.exists(path) else []:
        if l.strip() and not l.startswith("#"):
            file, kind, rest = l.strip().split(" | ", 2); text, reason = rest.rsplit(" | ", 1)
            named = re.fullmatch(r"(.*) #(\d+|all)", text); which = 0
            if named: text, which = named.group(1), None if named.group(2) == "all" else int(named.group(2)) - 1
            rows[file, kind, text, which] = reason
    return rows


def is_exempt(k, free): return k in free or (*k[:3], None) in free


def show(m): return f"{m['file']}:{m['line']}: {m['kind']}{'' if m['reached'] else ' (no test gets here)'}: {m['text']}{' #%d' % (m['nth'] + 1) if m.get('nth') else ''}"


def compare(before, after):
    (_, old), (_, new) = results(before), results(after); free = exempt()
    lost = [new[k] for k in old if k in new and old[k]["killers"] and not new[k]["killers"] and not is_exempt(k, free)]
    won = [new[k] for k in old if k in new and not old[k]["killers"] and new[k]["killers"]]
    untried = [old[k] for k in old if k not in new and old[k]["killers"]]
    for title, rows in (("noticed before, not now", lost), ("noticed now", won), ("noticed before, not tried or not there now", untried)):
        print(f"{len(rows)} {title}")
        for m in sorted(rows, key=lambda m: (m["file"], m["line"])) if rows is not won else []: print("  " + show(m))
    sys.exit(1 if lost else 0)


def changed_lines(rev):
    """-> {file: lines that differ from the commit}"""
    lines, file = collections.defaultdict(set), None
    for l in subprocess.run(["git", "-C", ROOT, "diff", "-U0", rev, "--", "src"], capture_output=True, text=True, check=True).stdout.split("\n"):
        if l.startswith("+++ b/"): file = l[6:]
        h = re.match(r"^@@ .* \+(\d+)(?:,(\d+))? @@", l)
        if h: lines[file] |= set(range(int(h.group(1)), int(h.group(1)) + int(h.group(2) or 1)))
    return lines


def matrix(tried, tests, by):
    end = time.time() + 60 * A.minutes; kills = {}
    sample = [m["id"] for m in tried if m["killers"]]; random.shuffle(sample)
    for i in sample:
        if time.time() > end: break
        ks = set()
        for p in {n.split(":")[0] for n in by[i]}:
            g = [n for n in by[i] if n.startswith(p + ":")]
            ks |= set(run(g, i, fast=False, seconds=15 + 5 * sum(tests[n]["s"] for n in g)))
        kills[i] = {re.sub(r"/\d+$", "", k) for k in ks}
    cover = collections.defaultdict(set)
    for i, ks in kills.items():
        for k in ks: cover[k].add(i)
    alone = collections.Counter(next(iter(ks)) for ks in kills.values() if len(ks) == 1)
    print(f"\n{len(kills)} noticed mutants tried on every test that reaches them.\nTests that noticed nothing alone (noticed with others):")
    for n in sorted({re.sub(r"/\d+$", "", n) for n in tests}, key=lambda n: len(cover[n])):
        if not alone[n]: print(f"  {len(cover[n]):4d}  {n}")


def main():
    files, stamp = copy_tree()
    print("building all mutants at once (one full build)", flush=True)
    mutants = build(files); seen = collections.Counter()
    for m in mutants:
        same = (m["file"], m["kind"], m["text"]); m["nth"] = seen[same]; seen[same] += 1
    tests = {n: t for n, t in trace(stamp).items() if t["s"] < 30}
    by = collections.defaultdict(list)
    for n, t in tests.items():
        for i in t["reach"]: by[i].append(n)
    old_stamp, done = results(A.name)
    if old_stamp != stamp: done = {}
    log = open(os.path.join(OUT, "results", A.name + ".jsonl"), "a" if done else "w", encoding="utf-8")
    if not done: log.write(json.dumps({"stamp": stamp}) + "\n")
    lines = changed_lines(A.changed) if A.changed else None
    mine = [m for m in mutants if any(fnmatch.fnmatch(m["file"], g) for g in A.files) and (lines is None or m["line"] in lines[m["file"]])]
    random.seed(1); random.shuffle(mine); end = time.time() + 60 * A.minutes
    for m in mine:
        if key(m) in done or time.time() > end: continue
        r = dict(m, killers=[], reached=len(by[m["id"]]))
        order = sorted(by[m["id"]], key=lambda n: len(tests[n]["reach"]))
        for group in [[n] for n in order[:3]] + [[n for n in order[3:] if n.startswith(p + ":")] for p in sorted({n.split(":")[0] for n in order[3:]})]:
            if not group: continue
            r["killers"] = run(group, m["id"], seconds=15 + 5 * sum(tests[n]["s"] for n in group))
            if r["killers"]: break
        done[key(m)] = r; log.write(json.dumps(r, ensure_ascii=False) + "\n"); log.flush()
    tried = [done[key(m)] for m in mine if key(m) in done]; free = exempt()
    alive = [r for r in tried if not r["killers"]]; due = [r for r in alive if not is_exempt(key(r), free)]
    counted = len(tried) - len(alive) + len(due)
    print(f"\n{len(mine)} mutants, {len(tried)} tried, {len(tried) - len(alive)} noticed, {len(alive) - len(due)} exempt, {len(due)} not noticed"
          f" ({sum(1 for r in due if not r['reached'])} reached by no test): {100 * (len(tried) - len(alive)) / max(1, counted):.0f} % of those that count\n")
    for r in sorted(due, key=lambda r: (r["file"], r["line"])): print(show(r))
    there = {key(m) for m in mutants}; some = {k[:3] for k in there}
    for k in free:
        if k not in there and not (k[3] is None and k[:3] in some): print("exempt, but not there:", *k)
    if A.matrix: matrix(tried, tests, by)


compare(*A.compare) if A.compare else main()
