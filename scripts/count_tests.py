#!/usr/bin/python3
"""Sums up the last run of ctest in some build folders: what failed, then "N passed, N failed".

usage: count_tests.py BUILD_FOLDER...
Counts the single tests of programs that hold many, and one for each other test. Of a program that
failed, only what its failed tests said is shown. A test that says "Skipped: REASON" counts as
neither; what it says is passed on, and so is what failed once and then passed.
Returns 1 when a test failed.
"""
import os
import re
import sys


MANY_LINES = 60


def what_failed(block):
    """The part of a failed test's output that tells why."""
    tests = re.findall(r'^\[ RUN      \] (\S+)\n(.*?)(?=^\[ RUN      \]|^\[----------\]|\Z)', block,
                       re.M | re.S)
    failed = [name + '\n' + said for name, said in tests if '[       OK ] ' + name not in said]
    # What is looked at before the first test and after the last.
    around = re.findall(r'^\[----------\] (Global test environment \S+)\n(.*?)(?=^\[|\Z)', block,
                        re.M | re.S)
    failed += [name + '\n' + said for name, said in around if said.strip()]
    lines = ''.join(failed).splitlines() if failed else block.splitlines()
    return '\n'.join(lines[-MANY_LINES:])


def count(log):
    """Passed and failed tests in the text of ctest's LastTest.log."""
    passed = failed = 0
    for block in re.split(r'^\d+/\d+ Testing: ', log, flags=re.M)[1:]:
        if skipped := re.search(r'^Skipped: .*$', block, re.M):
            print(re.match(r'.*', block)[0] + ': ' + skipped[0])
            continue
        good = re.findall(r'^\[  PASSED  \] (\d+) tests?\.$', block, re.M)
        bad = re.findall(r'^\[  FAILED  \] (\d+) tests?, listed below:$', block, re.M)
        block_passed = sum(map(int, good))
        # Of what was run once more, the second time counts.
        block_failed = int(bad[-1]) if bad else 0
        if re.search(r'^Test Passed\.$', block, re.M):
            block_passed = block_passed or 1
            block_failed = 0
            if again := re.search(r'^Failed once, then passed: .*$', block, re.M):
                print('%s: %s\n%s\n' % (re.match(r'.*', block)[0], again[0], what_failed(block)))
        else:
            # A program that ended too early failed although none of its tests says so.
            block_failed = block_failed or 1
            print('Failed: %s\n%s\n' % (re.match(r'.*', block)[0], what_failed(block)))
        passed += block_passed
        failed += block_failed
    return passed, failed


def main():
    passed = failed = 0
    for folder in sys.argv[1:]:
        with open(os.path.join(folder, 'Testing/Temporary/LastTest.log'), errors='replace') as log:
            more_passed, more_failed = count(log.read())
        passed += more_passed
        failed += more_failed
    print('%d passed, %d failed' % (passed, failed))
    return 1 if failed else 0


sys.exit(main())
