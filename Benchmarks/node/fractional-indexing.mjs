// The npm package fractional-indexing, timed on the operations of FractionalIndexBenchmark with
// inputs made the same way: keys of a list of appended items, a key between neighbours, a key after
// one, 100 keys between neighbours, and chains of insertions next to one fixed neighbour.
//
// Writes the runs in the JSON layout of Google Benchmark (one entry per repetition, items per CPU
// second, counters beside), so that scripts/bench reads both sides alike.
//
//   node fractional-indexing.mjs --repetitions 5 --out runs.json

import { generateKeyBetween, generateNKeysBetween } from "fractional-indexing";
import { writeFileSync } from "node:fs";
import { cpus } from "node:os";
import { parseArgs } from "node:util";

const { values: options } = parseArgs({
  options: {
    repetitions: { type: "string", default: "5" },
    "min-time": { type: "string", default: "0.5" },
    out: { type: "string" },
  },
});
const repetitions = Number(options.repetitions);
const minSeconds = Number(options["min-time"]);

const listLength = 1025;
const keysPerRun = 100;
const runsPerBatch = 64;

// Keeps results alive so that the JIT cannot drop the work.
let sink = 0;

// CPU seconds of the whole process: V8's helper threads collect the garbage that the package's
// strings leave, which is part of what an operation costs.
function cpuSeconds() {
  const { user, system } = process.cpuUsage();
  return (user + system) / 1e6;
}

function timePasses(pass, passes) {
  const start = cpuSeconds();
  let last;
  for (let i = 0; i < passes; ++i) last = pass();
  return { seconds: cpuSeconds() - start, last };
}

const runs = [];

// Runs `pass` (doing `itemsPerPass` operations) often enough for each repetition to last
// `minSeconds` of CPU; the calibrating passes before them also let the JIT compile. A failure ends
// the benchmark and is reported the way Google Benchmark reports an error.
function measure(name, itemsPerPass, pass, { counters = () => ({}), repeat = repetitions } = {}) {
  try {
    let passes = 1;
    let { seconds } = timePasses(pass, passes);
    while (seconds < minSeconds) {
      passes = Math.ceil(passes * Math.min(10, Math.max(2, (1.4 * minSeconds) / Math.max(seconds, 1e-6))));
      ({ seconds } = timePasses(pass, passes));
    }
    for (let repetition = 0; repetition < repeat; ++repetition) {
      const timed = timePasses(pass, passes);
      runs.push({
        name,
        run_name: name,
        run_type: "iteration",
        repetition_index: repetition,
        iterations: passes,
        cpu_time: (timed.seconds / passes) * 1e9,
        time_unit: "ns",
        items_per_second: (passes * itemsPerPass) / timed.seconds,
        ...counters(timed.last),
      });
    }
  } catch (failure) {
    runs.push({
      name,
      run_name: name,
      run_type: "iteration",
      error_occurred: true,
      error_message: `${failure.constructor.name}: ${failure.message}`,
    });
  }
}

const keys = generateNKeysBetween(null, null, listLength);

measure("fractional/between/npm", listLength - 1, () => {
  for (let i = 0; i + 1 < listLength; ++i) sink += generateKeyBetween(keys[i], keys[i + 1]).length;
});

measure("fractional/after/npm", listLength, () => {
  for (let i = 0; i < listLength; ++i) sink += generateKeyBetween(keys[i], null).length;
});

measure("fractional/n-keys/npm", runsPerBatch, () => {
  for (let i = 0; i < runsPerBatch; ++i) sink += generateNKeysBetween(keys[i], keys[i + 1], keysPerRun).length;
});

// Chains of insertions next to one neighbour, as in FractionalIndexBenchmark: just above keys[0]
// (each new key below the one before) or just below keys[1] (each above the one before).
function chain(direction, insertions) {
  const lower = keys[0];
  const upper = keys[1];
  let previous = direction === "just-above" ? upper : lower;
  for (let made = 0; made < insertions; ++made) {
    try {
      previous =
        direction === "just-above" ? generateKeyBetween(lower, previous) : generateKeyBetween(previous, upper);
    } catch (failure) {
      failure.message += ` (at insertion ${made + 1} of ${insertions}, key length ${previous.length})`;
      throw failure;
    }
  }
  return previous;
}

// The longest chains run once, as in FractionalIndexBenchmark: they are there to show whether the
// keys hold out and how long they grow, and one run takes seconds.
for (const direction of ["just-above", "just-below"]) {
  for (const insertions of [1000, 10000, 100000]) {
    measure(`fractional/${direction}/npm/${insertions}`, insertions, () => chain(direction, insertions), {
      counters: (last) => ({ keyChars: last.length }),
      repeat: insertions >= 100000 ? 1 : repetitions,
    });
  }
}

const report = {
  context: {
    executable: `node ${process.version}, fractional-indexing`,
    num_cpus: cpus().length,
    sink,
  },
  benchmarks: runs,
};
const text = JSON.stringify(report, null, 2);
if (options.out) writeFileSync(options.out, text);
else console.log(text);
