# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Times the codecs of palette files with 100,000 colours, and packages of npm that read a
swatch-exchange file, in one run. The packages go into a temporary folder. They get a file without
groups, since they lose their way at the end of one.

usage: interchange_bench.py FOLDER_OF_INTERCHANGE_BENCH [rounds]
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

PEERS = ("adobe-swatch-exchange@0.0.0", "ase-utils@0.1.1")

SCRIPT = """
const [name, file, rounds] = process.argv.slice(2);
const peer = require(name);
const bytes = require('fs').readFileSync(file);
function least(work) {
    let best = Infinity;
    for (let round = 0; round < rounds; ++round) {
        const start = process.cpuUsage();
        work();
        const {user, system} = process.cpuUsage(start);
        best = Math.min(best, (user + system) / 1000);
    }
    return best;
}
const result = {colors: peer.decode(bytes).colors.length, decode: least(() => peer.decode(bytes))};
console.log(JSON.stringify(result));
"""


def ours(bench, folder, rounds):
    results = pathlib.Path(folder, "ours.json")
    subprocess.run([bench, f"--benchmark_out={results}", "--benchmark_out_format=json",
                    f"--benchmark_repetitions={rounds}"], check=True, stdout=subprocess.DEVNULL,
                   env={**os.environ, "DROPSHADE_BENCH_FOLDER": folder})
    runs = json.loads(results.read_text())["benchmarks"]
    best = {}
    for run in runs:
        if run["run_type"] == "iteration":
            best[run["run_name"]] = min(run["cpu_time"], best.get(run["run_name"], float("inf")))
    return best


def theirs(folder, rounds):
    subprocess.run(["npm", "install", "--no-save", "--no-audit", "--no-fund", "--silent", *PEERS],
                   cwd=folder, check=True)
    script = pathlib.Path(folder, "peer.js")
    script.write_text(SCRIPT)
    for peer in PEERS:
        name = peer.split("@")[0]
        output = subprocess.run(["node", script, name, pathlib.Path(folder, "flat.ase"), str(rounds)],
                                cwd=folder, check=True, stdout=subprocess.PIPE).stdout
        yield name, json.loads(output)


def main(build, rounds=5):
    with tempfile.TemporaryDirectory() as folder:
        times = ours(pathlib.Path(build, "InterchangeBench").resolve(), folder, int(rounds))
        for what, milliseconds in times.items():
            print(f"{what:30} {milliseconds:8.1f} ms of processor time at the least")
        for name, result in theirs(folder, rounds):
            print(f"{name + ' decode':30} {result['decode']:8.1f} ms for {result['colors']} colours: "
                  f"ours takes {times['ase/decode_without_groups'] / result['decode']:.2f} of it")
        for file in ("large.ase", "large.clr"):
            print(f"{file:30} {pathlib.Path(folder, file).stat().st_size / 1e6:8.1f} MB")


if __name__ == "__main__":
    main(*sys.argv[1:])
