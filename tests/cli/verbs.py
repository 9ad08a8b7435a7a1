#!/usr/bin/env python3
"""verbs.py TENDO_CLI SHARE WORK: what each verb of tendo-cli gives for whole files and for wrong words."""
import json
import os
import shutil
import subprocess
import sys


def run(*words):
    done = subprocess.run([PROGRAM, *words], capture_output=True, env=dict(os.environ, QT_QPA_PLATFORM='offscreen'))
    return done.returncode, done.stdout.decode(), done.stderr.decode()


FAULTS = []


def expect(what, holds):
    if not holds:
        FAULTS.append(what)


def wrong_words():
    for words in ((), ('nonsense',), ('info',), ('info', 'a', 'b'), ('info', 'a', '--what'), ('report', JOB),
                  ('report', JOB, '-o'), ('report', JOB, '-o', 'x.txt'), ('report', JOB, '-o', 'x.pdf', '--reports', 'none'),
                  ('database', JOB, '--table'), ('prices', 'a.csv'), ('prices', 'a.csv', '--into'),
                  ('prices', 'a.csv', 'b.csv', '--into', 'c.mdb')):
        code, _, err = run(*words)
        expect(f'{words}: exit {code}, not 2', code == 2)
        expect(f'{words}: nothing said', err.strip() != '')
    for verb in ('info', 'report', 'prices', 'database', 'check'):
        code, out, _ = run(verb, '--help')
        expect(f'{verb} --help', code == 0 and f'usage: tendo-cli {verb}' in out)


def info():
    code, out, _ = run('info', JOB, '--json')
    records = json.loads(out)
    expect('info exit', code == 0)
    for name in ('GPDProjectFormat', 'GPDClientFormat', 'GPDCompanyFormat', 'SystemTendos', 'ModelInfo', 'SystemInfo',
                 'CLGModelData', 'HTGModelData', 'WHModelData', 'ProjectMaterials', 'ProjectLabor', 'ProjectFootNotes',
                 'ProjectAccRptFootNotes'):
        expect(f'info has no {name}', name in records)
    expect('five systems', len(records['CLGModelData']) == 5)
    code, out, _ = run('info', JOB)
    expect('info shows the title', code == 0 and records['GPDProjectFormat']['Title'].strip() in out)


def database():
    code, out, _ = run('database', JOB)
    tables = {table['name']: table['rows'] for table in json.loads(out)['tables']}
    expect('thirteen tables', code == 0 and len(tables) == 13)
    expect('row counts', tables['GPDProjectFormat'] == 1 and tables['ModelInfo'] == 5)
    code, out, _ = run('database', JOB, '--table', 'CLGModelData')
    rows = [json.loads(line) for line in out.splitlines()]
    expect('a line a row', code == 0 and [row['SystemNumber'] for row in rows] == [1, 2, 3, 4, 5])
    code, out, _ = run('database', JOB, '--schema')
    columns = {c['name']: c for t in json.loads(out)['tables'] if t['name'] == 'GPDProjectFormat' for c in t['columns']}
    expect('title is text of 40', columns['Title'] == {'name': 'Title', 'type': 'text', 'size': 40, 'allowZeroLength': True})
    code, _, err = run('database', JOB, '--table', 'None')
    expect('a missing table', code == 1 and 'None' in err)


def report():
    pdf = os.path.join(WORK, 'job.pdf')
    code, _, err = run('report', JOB, '-o', pdf, '--home', SHARE)
    expect(f'report: {err}', code == 0 and open(pdf, 'rb').read(5) == b'%PDF-')
    code, _, err = run('report', JOB, '-o', os.path.join(WORK, 'none', 'job.pdf'))
    expect('a folder that is not there', code == 1 and len(err.splitlines()) == 1)
    png = os.path.join(WORK, 'job.png')
    code, _, _ = run('report', JOB, '-o', png, '--reports', 'title')
    expect('a picture of the title page', code == 0 and open(png, 'rb').read(4) == b'\x89PNG')


def prices():
    book, sheet = os.path.join(WORK, 'book.mdb'), os.path.join(WORK, 'prices.csv')
    shutil.copy(os.path.join(SHARE, 'blank.mdb'), book)
    with open(sheet, 'w') as file:
        file.write('Part,Description,Unit,List\nW-1,"Whip, 6 ft",$17.25,23\nW-2,Boot,call,5.5\n')

    def materials():
        _, out, _ = run('database', book, '--table', 'Materials')
        return [json.loads(line) for line in out.splitlines()]

    code, out, err = run('prices', sheet, '--into', book)
    expect(f'prices: {err}', code == 0 and '2 rows imported' in out)
    expect('the cost that is no number is told', 'Row 3: unit cost "call" is no number: $0.00' in out)
    rows = materials()
    expect(f'the imported rows: {rows}', [(r['Part Number'], r['Description'], r['UnitCst'], r['ListCst']) for r in rows] ==
           [('W-1', 'Whip, 6 ft', 17.25, 23), ('W-2', 'Boot', 0, 5.5)])
    run('prices', sheet, '--into', book)
    expect('rows are added', len(materials()) == 4)
    code, _, _ = run('prices', sheet, '--into', book, '--replace')
    expect('rows are replaced', code == 0 and len(materials()) == 2)
    before = open(book, 'rb').read()
    for source, target in ((os.path.join(WORK, 'none.xls'), book), (JOB, book), (sheet, os.path.join(WORK, 'none.mdb'))):
        code, _, err = run('prices', source, '--into', target, '--replace')
        expect(f'prices {source} into {target}: {err}', code == 1 and len(err.splitlines()) == 1)
    expect('a failed import changed the price book', open(book, 'rb').read() == before)
    job = os.path.join(WORK, 'job.tdw')
    shutil.copy(JOB, job)
    code, _, err = run('prices', sheet, '--into', job)
    expect(f'a project is no price book: {err}', code == 1 and 'is no price book' in err and
           open(job, 'rb').read() == open(JOB, 'rb').read())


def check():
    for file in (JOB, os.path.join(SHARE, 'Common', 'Frostelm.mdb'), os.path.join(SHARE, 'tendo.mdb'),
                 os.path.join(SHARE, 'blank.mdb'), os.path.join(SHARE, 'Proposals.mdb')):
        code, out, err = run('check', file)
        expect(f'check {file}: {err}', code == 0 and 'is whole' in out)


PROGRAM, SHARE, WORK = sys.argv[1:]
JOB = os.path.join(SHARE, 'Projects', 'Maple Street 12.tdw')
shutil.rmtree(WORK, ignore_errors=True)
os.makedirs(WORK)
for part in (wrong_words, info, database, report, prices, check):
    part()
for fault in FAULTS:
    print(fault)
print(f'{len(FAULTS)} faults')
sys.exit(1 if FAULTS else 0)
