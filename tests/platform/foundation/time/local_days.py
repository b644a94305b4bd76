#!/usr/bin/env python3
"""Days of local time as Python's own reader of zones sees them, for a test to compare with.

    local_days.py SEED ZONES DAYS

Prints TZ, day, first second of the day, last second that shows 23:59:59 (both since 1970), for DAYS random days in each
of ZONES random zones; a third of the zones are rules instead of names.
"""
import datetime
import io
import random
import struct
import sys
import zoneinfo

EPOCH = datetime.datetime(1970, 1, 1)
STEP = 900


def zone_of_rules(rules):
    """A zone that consists of its footer."""
    header = b"TZif2" + bytes(15)
    data = struct.pack(">6l", 0, 0, 0, 0, 1, 4) + struct.pack(">lbb", 0, 0, 0) + b"UTC\0"
    return zoneinfo.ZoneInfo.from_file(io.BytesIO((header + data) * 2 + b"\n" + rules.encode() + b"\n"))


def random_time(randomness):
    return "/%d:%02d" % (randomness.choice([-1, 0, 1, 2, 3, 22, 24]), randomness.choice([0, 30]))


def random_rules(randomness):
    hours = randomness.randint(-12, 12)
    text = "STD%d:%02d" % (hours, randomness.choice([0, 0, 30, 45]))
    if randomness.random() < 0.2:
        return text
    days = []
    for month in randomness.sample([2, 5, 8, 11], 2):
        if randomness.random() < 0.7:
            day = "M%d.%d.%d" % (month, randomness.randint(1, 5), randomness.randint(0, 6))
        else:
            day = "J%d" % (month * 30)
        days.append(day + (random_time(randomness) if randomness.random() < 0.7 else ""))
    return text + "DST," + ",".join(days)


def offset_at(zone, second):
    moment = (EPOCH + datetime.timedelta(seconds=second)).replace(tzinfo=datetime.timezone.utc)
    return int(moment.astimezone(zone).utcoffset().total_seconds())


def stretches(zone, first, last):
    """(begin, end, offset) of each stretch of time with one offset."""
    begin, offset = first, offset_at(zone, first)
    result = []
    for second in range(first + STEP, last + STEP, STEP):
        following = offset_at(zone, second)
        if following == offset:
            continue
        low, high = second - STEP, second
        while high - low > 1:
            middle = (low + high) // 2
            low, high = (middle, high) if offset_at(zone, middle) == offset else (low, middle)
        result.append((begin, high, offset))
        begin, offset = high, following
    result.append((begin, last, offset))
    return result


def bounds(zone, day):
    midnight = int((day - EPOCH).total_seconds())
    last = midnight + 86399
    found = stretches(zone, midnight - 30 * 3600, midnight + 54 * 3600)
    begins = [max(begin, midnight - offset) for begin, end, offset in found
              if max(begin, midnight - offset) < min(end, last + 1 - offset)]
    ends = [last - offset for begin, end, offset in found if begin <= last - offset < end]
    if not ends:  # skipped: the offset from before
        ends = [last - before[2] for before, after in zip(found, found[1:])
                if before[1] + before[2] <= last < after[0] + after[2]]
    return (min(begins), max(ends)) if begins and ends else None


def main():
    seed, zones, days = (int(argument) for argument in sys.argv[1:])
    randomness = random.Random(seed)
    names = sorted(name for name in zoneinfo.available_timezones() if name != "localtime")
    for _ in range(zones):
        if randomness.random() < 1 / 3:
            name = random_rules(randomness)
            zone = zone_of_rules(name)
            first = datetime.datetime(1971, 1, 1)  # libc applies rules, as opposed to names, to no year before 1970
        else:
            name = randomness.choice(names)
            zone = zoneinfo.ZoneInfo(name)
            first = datetime.datetime(1950, 1, 1)
        for _ in range(days):
            day = first + datetime.timedelta(days=randomness.randint(0, 130 * 365))
            if randomness.random() < 0.7:
                day = nearest_change(zone, day) or day
            found = bounds(zone, day)
            if found:
                print(name, day.strftime("%Y-%m-%d"), *found, sep="\t")


def nearest_change(zone, day):
    """The first day from this one on, within a year, around which the clock changes."""
    second = int((day - EPOCH).total_seconds())
    offset = offset_at(zone, second)
    for distance in range(1, 366):
        if offset_at(zone, second + distance * 86400) != offset:
            return day + datetime.timedelta(days=distance - 1 + (second + distance) % 2)
    return None


main()
