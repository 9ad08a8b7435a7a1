#!/usr/bin/env python3
"""Checks who includes whom: rooms only look downward, Qt stays in screens and platform/qt, no file cycles."""
import os
import re
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'src')
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.M)

# room: rooms it may include, itself and platform aside
ALLOWED = {
    'platform': set(),
    'project': set(),
    'pricing': {'project'},
    'equipment': {'project', 'pricing'},
    'materials': {'project', 'pricing'},
    'footnotes': {'project'},
    'reports': {'project', 'pricing', 'equipment', 'materials', 'footnotes'},
    'imports': {'project', 'materials', 'footnotes'},
    'explorer': {'project', 'materials', 'footnotes'},
    'app': {'project', 'pricing', 'equipment', 'materials', 'footnotes', 'reports', 'imports',
            'explorer'},
    'programs': {'project', 'pricing', 'equipment', 'materials', 'footnotes', 'reports', 'imports',
                 'explorer', 'app'},
}


def sources():
    for folder, _, names in os.walk(ROOT):
        for name in names:
            if name.endswith(('.h', '.cpp')):
                yield os.path.relpath(os.path.join(folder, name), ROOT)


def may_use_qt(path):
    return '/screens/' in path or path.startswith(('platform/qt/', 'programs/'))


def component(path):
    """A header and its source file count as one: cycles through the .cpp are cycles too."""
    return path.rsplit('.', 1)[0]


def main():
    faults = []
    graph = {}
    for path in sources():
        room = path.split('/')[0]
        with open(os.path.join(ROOT, path), encoding='utf-8') as file:
            text = file.read()
        for kind, target in INCLUDE.findall(text):
            if kind == '<':
                if re.match(r'Q[A-Z]|Qt', target) and not may_use_qt(path):
                    faults.append(f'{path}: includes <{target}>, but only screens may see Qt')
                continue
            if not os.path.exists(os.path.join(ROOT, target)):
                continue  # the generated headers of moc
            other = target.split('/')[0]
            if other != room and other != 'platform' and other not in ALLOWED.get(room, set()):
                faults.append(f'{path}: {room} may not include {target}')
            if room == 'platform' and not path.startswith('platform/qt/') and 'platform/qt/' in target:
                faults.append(f'{path}: includes {target}, but only screens may see Qt')
            if not may_use_qt(path) and '/screens/' in target:
                faults.append(f'{path}: logic may not include the screen {target}')
            if component(target) != component(path):
                graph.setdefault(component(path), set()).add(component(target))
    faults += cycles(graph)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


def cycles(graph):
    """Every cycle found by one depth-first walk, as a line each."""
    found, state, stack = [], {}, []

    def visit(node):
        state[node] = 1
        stack.append(node)
        for other in sorted(graph.get(node, ())):
            if state.get(other) == 1:
                found.append('cycle: ' + ' -> '.join(stack[stack.index(other):] + [other]))
            elif other not in state:
                visit(other)
        stack.pop()
        state[node] = 2

    sys.setrecursionlimit(10000)
    for node in sorted(graph):
        if node not in state:
            visit(node)
    return found


if __name__ == '__main__':
    sys.exit(main())
