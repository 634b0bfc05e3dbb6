// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT

// Writes sun-reference.csv to the standard output: what a general astronomy library says of
// the Sun at places and days chosen by a fixed sequence. Run by hand, never by the tests:
//
//     npm install --no-save astronomy-engine@2.1.19
//     node make-sun-reference.mjs > sun-reference.csv
//
// A row's transit is the first upper culmination at or after 0h UTC of its date, its sunrise
// the last one before that transit and its sunset the first one after it. Rises and sets are
// the Sun's centre at -50/60 degrees without refraction, dawn and dusk the centre at -18
// degrees. The asr columns say when a shadow has grown by one and by two heights of what casts
// it since transit. All four are left empty above 45 degrees of latitude, where the Sun may
// only graze such altitudes.
// Days whose transit falls within a minute of 0h UTC are left out.

import * as Astronomy from 'astronomy-engine';

const kRows = 2400;
const kSunriseAltitude = -50 / 60;
const kDawnAltitude = -18;
const kSearchDays = 1.5;
const kClearSeconds = 60;

let state = 20261121;

// The next of a fixed sequence of numbers in [0, 1) (xorshift, 32 bits).
function draw() {
    state ^= state << 13;
    state ^= state >>> 17;
    state ^= state << 5;
    return (state >>> 0) / 2 ** 32;
}

const between = (low, high) => low + (high - low) * draw();
const inTenThousandths = (value) => Math.round(value * 1e4) / 1e4;

// Every sixth place lies within three degrees of the date line, on either side of it.
function place(index) {
    const nearDateLine = index % 6 === 0;
    const offset = between(-3, 3);
    const beside = offset < 0 ? 180 + offset : -180 + offset;
    return {
        latitude: inTenThousandths(between(-65, 65)),
        longitude: inTenThousandths(nearDateLine ? beside : between(-180, 180)),
    };
}

function day() {
    const first = Date.UTC(1950, 0, 1) / 86400e3;
    const last = Date.UTC(2100, 11, 31) / 86400e3;
    return new Date(Math.floor(between(first, last + 1)) * 86400e3);
}

function seconds(time) {
    if (time === null) {
        throw new Error('the Sun does not reach the altitude');
    }
    return (time.date.getTime() / 1000).toFixed(1);
}

// The transit, or nothing for one so near to 0h UTC that either day may claim it.
function clearTransit(observer, date) {
    const transit = Astronomy.SearchHourAngle('Sun', observer, 0, date, +1).time;
    const after = transit.date.getTime() / 1000 - date.getTime() / 1000;
    return after > kClearSeconds && after < 86400 - kClearSeconds ? transit : null;
}

// The altitude at which shadows are longer than at transit by so many heights.
function shadowAltitude(observer, transit, heights) {
    const sun = Astronomy.Equator('Sun', transit, observer, true, true);
    const noon = Astronomy.Horizon(transit, observer, sun.ra, sun.dec);
    const shortest = 1 / Math.tan((noon.altitude * Math.PI) / 180);
    return (Math.atan(1 / (heights + shortest)) * 180) / Math.PI;
}

function row({ latitude, longitude }, date) {
    const observer = new Astronomy.Observer(latitude, longitude, 0);
    const transit = clearTransit(observer, date);
    if (transit === null) {
        return null;
    }
    const before = (altitude) =>
        Astronomy.SearchAltitude('Sun', observer, +1, transit, -kSearchDays, altitude);
    const after = (altitude) =>
        Astronomy.SearchAltitude('Sun', observer, -1, transit, kSearchDays, altitude);
    const asr = (heights) => after(shadowAltitude(observer, transit, heights));
    const hasTwilight = Math.abs(latitude) <= 45;
    return [
        date.toISOString().slice(0, 10),
        latitude,
        longitude,
        seconds(transit),
        seconds(before(kSunriseAltitude)),
        seconds(after(kSunriseAltitude)),
        hasTwilight ? seconds(before(kDawnAltitude)) : '',
        hasTwilight ? seconds(after(kDawnAltitude)) : '',
        hasTwilight ? seconds(asr(1)) : '',
        hasTwilight ? seconds(asr(2)) : '',
    ].join(',');
}

console.log(
    '# Made by make-sun-reference.mjs with astronomy-engine 2.1.19 (MIT), which computes from' +
        ' VSOP87 and IAU 2000B nutation; times are seconds since 1970 UTC.'
);
console.log('date,latitude,longitude,transit,sunrise,sunset,dawn18,dusk18,asr1,asr2');
for (let index = 0; index < kRows; ++index) {
    const text = row(place(index), day());
    if (text !== null) {
        console.log(text);
    }
}
