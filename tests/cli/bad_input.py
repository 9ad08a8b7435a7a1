#!/usr/bin/env python3
"""Gives every command of tendo-cli every kind of bad file.

bad_input.py TENDO_CLI SHARE WORK: each run must end with 0, or with 1 and exactly one line on standard error that names the
file; the file's bytes must be as they were, nothing may be left beside it, and no run may take longer than ten seconds.
"""
import os
import random
import shutil
import subprocess
import sys

PAGE = 4096
FAILS, MAY_PASS = 'fails', 'may pass'


def damaged(source, flips):
    """(name, bytes, what is expected) of one whole file."""
    data = open(source, 'rb').read()
    yield 'empty', b'', FAILS
    for length in (1, 20, 100, PAGE, 3 * PAGE):
        yield f'cut-{length}', data[:length], FAILS
    yield 'cut-half', data[:len(data) // 2], MAY_PASS
    yield 'cut-last-byte', data[:-1], MAY_PASS
    yield 'kind-text', b'Dear customer,\r\nthis is no database.\r\n' * 300, FAILS
    yield 'kind-pdf', b'%PDF-1.4\n' + bytes(40000), FAILS
    yield 'kind-zeros', bytes(len(data)), FAILS
    later = bytearray(data)
    later[0x14] = 2
    yield 'kind-later-version', bytes(later), FAILS
    key = bytearray(data)
    key[0x3e] ^= 0x55
    yield 'encrypted', bytes(key), FAILS
    password = bytearray(data)
    password[0x42] ^= 0x41
    yield 'password', bytes(password), MAY_PASS
    yield 'huge-definition', with_definitions(data, 8, b'\xff\xff\xff\x7f'), MAY_PASS
    yield 'huge-row-count', with_definitions(data, 16, b'\xff\xff\xff\x7f'), MAY_PASS
    yield 'huge-columns', with_definitions(data, 45, b'\xff\xff'), MAY_PASS
    yield 'pages-in-a-circle', with_definitions(data, 4, b'\x02\x00\x00\x00'), MAY_PASS
    chance = random.Random(1998)
    for i in range(flips):
        flipped = bytearray(data)
        for _ in range(chance.choice((1, 1, 8, 64))):
            flipped[chance.randrange(len(flipped))] ^= 1 << chance.randrange(8)
        yield f'flip-{i}', bytes(flipped), MAY_PASS


def with_definitions(data, offset, value):
    """The bytes put into every table definition page."""
    changed = bytearray(data)
    for page in range(0, len(data), PAGE):
        if changed[page:page + 2] == b'\x02\x01':
            changed[page + offset:page + offset + len(value)] = value
    return bytes(changed)


def commands(table):
    return {
        'info': ['info', 'FILE', '--json'],
        'report': ['report', 'FILE', '-o', 'OUT.pdf'],
        'database': ['database', 'FILE', '--schema'],
        'table': ['database', 'FILE', '--table', table],
        'check': ['check', 'FILE'],
    }


class Trial:
    def __init__(self, program, work):
        self.program, self.work = program, work
        self.faults, self.runs, self.refused = [], 0, 0

    def run(self, name, words, file, expected):
        """One command on one file; `file` may be missing or a folder."""
        out = os.path.join(self.work, 'OUT.pdf')
        words = [file if word == 'FILE' else out if word == 'OUT.pdf' else word for word in words]
        before = open(file, 'rb').read() if os.path.isfile(file) else None
        listing = sorted(os.listdir(self.work))
        self.runs += 1
        try:
            done = subprocess.run([self.program] + words, capture_output=True, timeout=10,
                                  env=dict(os.environ, QT_QPA_PLATFORM='offscreen'))
        except subprocess.TimeoutExpired:
            return self.fault(name, file, 'took longer than ten seconds')
        lines = done.stderr.decode('utf-8', 'replace').splitlines()
        if done.returncode not in (0, 1):
            self.fault(name, file, f'exit {done.returncode}: {lines[-1:]}')
        if done.returncode == 0 and expected == FAILS:
            self.fault(name, file, 'passed')
        if done.returncode == 1:
            self.refused += 1
            if len(lines) != 1 or not lines[0].startswith('tendo-cli: ') or os.path.basename(file) not in lines[0]:
                self.fault(name, file, f'message {lines}')
            if os.path.exists(out):
                self.fault(name, file, 'left an output behind')
        if before is not None and open(file, 'rb').read() != before:
            self.fault(name, file, 'changed the file')
        if os.path.exists(out):
            os.remove(out)
        if sorted(os.listdir(self.work)) != listing:
            self.fault(name, file, f'left something beside it: {sorted(os.listdir(self.work))}')

    def fault(self, name, file, text):
        self.faults.append(f'{name} {os.path.basename(file)}: {text}')


def damaged_books(source):
    """(name, bytes) of one whole workbook: cut short, and with bytes turned over."""
    data = open(source, 'rb').read()
    for length in (0, 1, 8, 100, 512, len(data) // 2, len(data) - 1):
        yield f'cut-{length}', data[:length]
    generator = random.Random(4)
    for number in range(40):
        changed = bytearray(data)
        for _ in range(8):
            changed[generator.randrange(len(data))] = generator.randrange(256)
        yield f'flips-{number}', bytes(changed)


def import_damaged(trial, share, work):
    """Damaged workbooks into a whole price book, and a whole one into damaged price books."""
    books = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'data', 'office')
    target = os.path.join(work, 'prices.mdb')
    for base in ('parts.xls', 'parts.xlsx'):
        for kind, data in damaged_books(os.path.join(books, base)):
            shutil.copy(os.path.join(share, 'blank.mdb'), target)
            file = os.path.join(work, f'{kind}-{base}')
            with open(file, 'wb') as out:
                out.write(data)
            refused = trial.refused
            trial.run('prices', ['prices', 'FILE', '--into', target], file, MAY_PASS)
            if trial.refused > refused and open(target, 'rb').read() != open(os.path.join(share, 'blank.mdb'), 'rb').read():
                trial.fault('prices', file, 'was refused but changed the price book')
            os.remove(file)
    os.remove(target)
    sheet = os.path.join(books, 'parts.xls')
    for kind, data, expected in damaged(os.path.join(share, 'tendo.mdb'), 10):
        if expected != FAILS:
            continue
        file = os.path.join(work, f'{kind}-tendo.mdb')
        with open(file, 'wb') as out:
            out.write(data)
        trial.run('prices', ['prices', sheet, '--into', 'FILE', '--replace'], file, FAILS)
        os.remove(file)


def main():
    program, share, work = sys.argv[1:]
    shutil.rmtree(work, ignore_errors=True)
    os.makedirs(work)
    trial = Trial(program, work)
    sources = {
        'job.tdw': (os.path.join(share, 'Projects', 'Maple Street 12.tdw'), 'Materials', 40),
        'models.mdb': (os.path.join(share, 'Common', 'Frostelm.mdb'), 'AC File', 25),
    }
    for base, (source, table, flips) in sources.items():
        for kind, data, expected in damaged(source, flips):
            file = os.path.join(work, f'{kind}-{base}')
            with open(file, 'wb') as out:
                out.write(data)
            for name, words in commands(table).items():
                trial.run(name, words, file, expected)
            os.chmod(file, 0o444)
            trial.run('check', commands(table)['check'], file, expected)
            os.remove(file)
    import_damaged(trial, share, work)
    for name, words in commands('Materials').items():
        trial.run(name, words, os.path.join(work, 'missing.tdw'), FAILS)
        trial.run(name, words, work, FAILS)
    for fault in trial.faults:
        print(fault)
    print(f'{trial.runs} runs, {trial.refused} refused with a message, {len(trial.faults)} faults')
    return 1 if trial.faults or trial.refused == 0 else 0


if __name__ == '__main__':
    sys.exit(main())
