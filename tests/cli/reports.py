#!/usr/bin/env python3
"""reports.py TENDO_CLI SHARE WORK: what `tendo-cli report` writes, and what it says when it can't.

Every run must leave the project, the profile and the saved formats as they were, and nothing in the temporary folder.
"""
import os
import shutil
import subprocess
import sys

FAULTS = []
UNWRITTEN = ('Detailed Cost Report', 'Optional Accessories Report', "Installer's Report")


def expect(what, holds):
    if not holds:
        FAULTS.append(what)


def contents():
    return {os.path.join(folder, name): open(os.path.join(folder, name), 'rb').read()
            for folder, _, names in os.walk(HOME) for name in names}


def report(*words, job=None, ends=0):
    """The lines on standard error of one run."""
    before = contents()
    done = subprocess.run([PROGRAM, 'report', job or JOB, '--home', HOME, *words], capture_output=True,
                          env=dict(os.environ, TMPDIR=TEMPORARY, QT_QPA_PLATFORM=''))
    lines = done.stderr.decode().splitlines()
    expect(f'{words}: exit {done.returncode}, not {ends}: {lines}', done.returncode == ends)
    expect(f'{words}: something in the program directory changed', contents() == before)
    # Qt keeps a folder of its own there.
    left = [name for name in os.listdir(TEMPORARY) if not name.startswith('runtime-')]
    expect(f'{words}: left {left}', left == [])
    for line in lines:
        expect(f'{words}: a line of another make: {line}', line.startswith('tendo-cli: '))
    if ends == 1:
        expect(f'{words}: more than one line: {lines}', len(lines) == 1)
    return lines


def out(name):
    return os.path.join(WORK, name)


def tool(*words):
    return subprocess.run(words, capture_output=True, check=True).stdout


def text(pdf):
    return tool('pdftotext', '-layout', pdf, '-').decode()


def pages(pdf):
    return int(next(line for line in tool('pdfinfo', pdf).decode().splitlines() if line.startswith('Pages:')).split()[1])


def whole_package():
    lines = report('-o', out('all.pdf'))
    expect(f'what is left out: {lines}', len(lines) == 1 and all(name in lines[0] for name in UNWRITTEN))
    paper = text(out('all.pdf'))
    for expected in ('TENDO SALES PROPOSAL', 'Project Summary', 'Sales Report', 'FA-3614'):
        expect(f'the package lacks {expected}', expected in paper)


def chosen_reports():
    expect('title alone says nothing', report('-o', out('title.pdf'), '--reports', 'title') == [])
    expect('the title page alone', pages(out('title.pdf')) == 1 and 'Project Summary' not in text(out('title.pdf')))
    report('-o', out('sales.pdf'), '--reports', 'Sales')
    expect('the sales report alone', 'TENDO SALES PROPOSAL' not in text(out('sales.pdf')) and
           'Project Summary' in text(out('sales.pdf')))
    report('-o', out('both.pdf'), '--reports', ' sales , title')
    expect('both', pages(out('both.pdf')) == pages(out('title.pdf')) + pages(out('sales.pdf')))


def reports_that_are_not_to_be_had():
    for word, name in (('cost', UNWRITTEN[0]), ('accessories', UNWRITTEN[1]), ('installer', UNWRITTEN[2])):
        lines = report('-o', out('none.pdf'), '--reports', 'title,' + word, ends=1)
        expect(f'{word}: {lines}', name in lines[0] and "doesn't write" in lines[0])
    for words in ('letter', '', 'title,,sales', ','):
        lines = report('-o', out('none.pdf'), '--reports', words, ends=2)
        expect(f'--reports {words}: {lines}', 'title, sales, cost, accessories, installer' in lines[0])
    expect('nothing was written', not os.path.exists(out('none.pdf')))


def pictures():
    report('-o', out('title.png'), '--reports', 'title')
    report('-o', out('many.PNG'), '--reports', 'title,sales')
    count = pages(out('both.pdf'))
    names = ['title.png'] + [f'many-{page}.PNG' for page in range(1, count + 1)]
    for name in names:
        with open(out(name), 'rb') as file:
            head = file.read(24)
        # 150 dots an inch: 1275 by 1650.
        expect(f'{name}: {head}', head[:8] == b'\x89PNG\r\n\x1a\n' and
               (int.from_bytes(head[16:20], 'big'), int.from_bytes(head[20:24], 'big')) == (1275, 1650))
    expect('no other pictures', sorted(n for n in os.listdir(WORK) if n.lower().endswith('.png')) == sorted(names))


def saved_format():
    lines = report('-o', out('blue.pdf'), '--format', 'Short proposal, blue')
    expect(f'the format marks no report that is left out: {lines}', lines == [])
    paper = text(out('blue.pdf'))
    for expected, there in (('TENDO SALES PROPOSAL', False), ('Sales Report', True), ('tax included. Good for', True),
                            ('List Price:', False), ('Compress Warranty:', True), ('Page 3', False)):
        expect(f'{expected} in the format: {not there}', (expected in paper) == there)
        expect(f'{expected} is on the standard paper: {there}', there or expected in text(out('all.pdf')))
    # The bar behind a heading, E9F3FB; the standard is FFFFC0.
    bars = {name: tool('pdftoppm', '-r', '40', out(name)) for name in ('blue.pdf', 'all.pdf')}
    expect('the format colours', bytes.fromhex('E9F3FB') in bars['blue.pdf'] and
           bytes.fromhex('E9F3FB') not in bars['all.pdf'] and bytes.fromhex('FFFFC0') in bars['all.pdf'])
    report('-o', out('one.pdf'), '--format', 'Short proposal, blue', '--reports', 'title')
    expect('--reports goes before the format', 'TENDO SALES PROPOSAL' in text(out('one.pdf')) and pages(out('one.pdf')) == 1)
    report('-o', out('custom.pdf'), '--format', 'Custom Format')
    expect('Custom Format is the current settings', text(out('custom.pdf')) == text(out('all.pdf')))


def unknown_format():
    lines = report('-o', out('none.pdf'), '--format', 'Red', ends=1)
    expect(f'an unknown format: {lines}', '"Red"' in lines[0] and '"Customer proposal"' in lines[0])
    formats = os.path.join(HOME, 'Proposals.mdb')
    whole = open(formats, 'rb').read()
    with open(formats, 'wb') as file:
        file.write(whole[:5000])
    lines = report('-o', out('none.pdf'), '--format', 'Short proposal, blue', ends=1)
    expect(f'damaged formats: {lines}', 'Proposals.mdb' in lines[0])
    os.remove(formats)
    lines = report('-o', out('none.pdf'), '--format', 'Short proposal, blue', ends=1)
    expect(f'missing formats: {lines}', 'Proposals.mdb' in lines[0] and 'missing' in lines[0])
    with open(formats, 'wb') as file:
        file.write(whole)


def targets_that_cannot_be_written():
    os.mkdir(out('folder.pdf'))
    os.symlink('/dev/full', out('full.pdf'))
    os.symlink('/dev/full', out('full.png'))
    shutil.copy(JOB, out('job.pdf'))
    before = open(out('job.pdf'), 'rb').read()
    for target, cause in (('no/such/folder/x.pdf', 'there is no such folder'), ('folder.pdf', 'it is a folder'),
                          ('full.pdf', 'the disk is full'), ('full.png', 'the disk is full')):
        lines = report('-o', out(target), '--reports', 'title', ends=1)
        expect(f'{target}: {lines}', out(target) in lines[0] and cause in lines[0])
    lines = report('-o', out('job.pdf'), job=out('job.pdf'), ends=1)
    expect(f'the project as its own target: {lines}', 'is the project itself' in lines[0])
    expect('the project stays', open(out('job.pdf'), 'rb').read() == before)
    if os.getuid() != 0:
        os.mkdir(out('closed'), 0o500)
        report('-o', out('closed/x.pdf'), ends=1)


def projects_that_cannot_be_read():
    report('-o', out('none.pdf'), job=out('missing.tdw'), ends=1)
    for name, data in (('empty.tdw', b''), ('half.tdw', open(JOB, 'rb').read()[:6000]), ('text.tdw', b'Dear customer\n' * 900)):
        with open(out(name), 'wb') as file:
            file.write(data)
        lines = report('-o', out('none.pdf'), job=out(name), ends=1)
        expect(f'{name}: {lines}', name in lines[0])
    lines = report('-o', out('none.pdf'), job=os.path.join(SHARE, 'tendo.mdb'), ends=1)
    expect(f'a price book: {lines}', 'no project file' in lines[0])
    expect('nothing was written', not os.path.exists(out('none.pdf')))


def nothing_marked():
    with open(os.path.join(HOME, 'Tendo.ini'), 'w') as file:
        file.write('[ReportOptions]\nchkPrintTitleReport=0\nchkPrintSalesReport=0\n')
    lines = report('-o', out('none.pdf'), ends=1)
    expect(f'no report marked: {lines}', 'no report is marked' in lines[0])
    report('-o', out('marked.pdf'), '--reports', 'title')
    expect('--reports goes before the profile', pages(out('marked.pdf')) == 1)
    report('-o', out('format.pdf'), '--format', 'Short proposal, blue')
    expect('a format goes before the profile', 'Sales Report' in text(out('format.pdf')))


PROGRAM, SHARE, WORK = (os.path.abspath(word) for word in sys.argv[1:])
HOME, TEMPORARY = os.path.join(WORK, 'home'), os.path.join(WORK, 'temporary')
JOB = os.path.join(HOME, 'Projects', 'Maple Street 12.tdw')
shutil.rmtree(WORK, ignore_errors=True)
shutil.copytree(SHARE, HOME)
os.mkdir(TEMPORARY)
for part in (whole_package, chosen_reports, reports_that_are_not_to_be_had, pictures, saved_format, unknown_format,
             targets_that_cannot_be_written, projects_that_cannot_be_read, nothing_marked):
    part()
for fault in FAULTS:
    print(fault)
print(f'{len(FAULTS)} faults')
sys.exit(1 if FAULTS else 0)
