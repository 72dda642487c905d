// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
//
// Makes resources/presets/PresetPalettes.json from the published packages:
//
//   npm install --prefix FOLDER --ignore-scripts --legacy-peer-deps PACKAGE…
//   node tools/make_preset_palettes.mjs FOLDER > resources/presets/PresetPalettes.json
//
// where PACKAGE… is what `node tools/make_preset_palettes.mjs` prints. The file is committed, so
// that a build needs neither.

import { createRequire } from "node:module";
import { readFile } from "node:fs/promises";
import path from "node:path";
import process from "node:process";
import { pathToFileURL } from "node:url";

const PACKAGES = [
    "@ant-design/colors@8.0.1",
    "@carbon/colors@11.59.0",
    "@catppuccin/palette@1.8.0",
    "@mantine/core@9.7.4",
    "@radix-ui/colors@3.0.0",
    "@rose-pine/palette@4.0.1",
    "material-colors@1.2.6",
    "open-color@1.9.1",
];

const folder = process.argv[2];

const fileOf = (name) => path.resolve(folder, "node_modules", name);
const modules = (name) => import(pathToFileURL(fileOf(name)).href);
const required = (name) => createRequire(import.meta.url)(fileOf(name));
const json = async (name) => JSON.parse(await readFile(fileOf(name), "utf8"));

/** "coolGray" and "deep-purple" as "Cool Gray" and "Deep Purple". */
const title = (key) =>
    key.replace(/([a-z])([A-Z])/g, "$1 $2")
        .split(/[- ]/)
        .map((word) => word[0].toUpperCase() + word.slice(1))
        .join(" ");
const labelPart = (text) =>
    text.normalize("NFD").replace(/\p{M}/gu, "").toLowerCase().replaceAll(" ", "-");
const hex = (value) => (value.startsWith("#") ? value : `#${value}`).toLowerCase();

/** A scale of [shade, value] pairs; each swatch is labelled with both names. */
const scale = (name, shades) => ({
    name,
    swatches: shades.map(([shade, value]) => ({
        value: hex(value),
        label: `${labelPart(name)}-${labelPart(shade)}`,
    })),
});
const numbered = (values, first = 0) => values.map((value, index) => [`${index + first}`, value]);

async function antDesign() {
    const { presetPalettes } = required("@ant-design/colors/lib/index.js");
    return Object.entries(presetPalettes).map(([key, values]) =>
        scale(title(key), numbered([...values], 1)));
}

async function carbon() {
    const { colors } = required("@carbon/colors/lib/index.js");
    return Object.entries(colors).map(([key, shades]) => scale(title(key), Object.entries(shades)));
}

async function catppuccin() {
    const { flavors } = await modules("@catppuccin/palette/esm/mod.js");
    return Object.values(flavors).map((flavor) =>
        scale(flavor.name, Object.values(flavor.colors).map((color) => [color.name, color.hex])));
}

async function mantine() {
    const { DEFAULT_COLORS } =
        await modules("@mantine/core/esm/core/MantineProvider/default-colors.mjs");
    return Object.entries(DEFAULT_COLORS).map(([key, values]) =>
        scale(title(key), numbered(values)));
}

async function material() {
    const colors = await json("material-colors/dist/colors.json");
    const shaded = Object.entries(colors).filter(([, shades]) => shades["500"]);
    return shaded.map(([key, shades]) => scale(title(key), Object.entries(shades)));
}

async function openColor() {
    const colors = await json("open-color/open-color.json");
    const shaded = Object.entries(colors).filter(([, values]) => Array.isArray(values));
    return shaded.map(([key, values]) => scale(title(key), numbered(values)));
}

const radix = (suffix) => async () => {
    const colors = required("@radix-ui/colors/index.js");
    const name = new RegExp(`^([a-z]+)${suffix}$`);
    const keys = Object.keys(colors).filter((key) => name.test(key));
    return keys.map((key) =>
        scale(title(name.exec(key)[1]), numbered(Object.values(colors[key]), 1)));
};

async function rosePine() {
    const { variants } = required("@rose-pine/palette/dist/index.js");
    return Object.values(variants).map(({ name, colors }) =>
        scale(name, Object.entries(colors).map(([role, color]) => [title(role), color.hex])));
}

const PRESETS = [
    ["Ant Design", antDesign],
    ["Carbon", carbon],
    ["Catppuccin", catppuccin],
    ["Mantine", mantine],
    ["Material", material],
    ["Open Color", openColor],
    ["Radix Colors", radix("")],
    ["Radix Colors Dark", radix("Dark")],
    ["Rosé Pine", rosePine],
];

/** One line for each swatch, so that a change of a package shows as such. */
function written(presets) {
    const lines = presets.map(({ name, scales }) => {
        const rows = scales.map((each) => {
            const swatches = each.swatches.map((swatch) => `    ${JSON.stringify(swatch)}`);
            return `   {"name": ${JSON.stringify(each.name)}, "swatches": [\n` +
                `${swatches.join(",\n")}]}`;
        });
        return ` {"name": ${JSON.stringify(name)}, "scales": [\n${rows.join(",\n")}]}`;
    });
    return `[\n${lines.join(",\n")}\n]\n`;
}

if (!folder) {
    console.log(PACKAGES.join(" "));
} else {
    const presets = [];
    for (const [name, scales] of PRESETS)
        presets.push({ name, scales: await scales() });
    process.stdout.write(written(presets));
}
