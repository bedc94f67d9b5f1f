#!/usr/bin/env python3
"""Derives the variant sets that follow from the record descriptions:
writer-last-checked, writer-unchecked and missing-classes (see
tests/frames/README).

    python3 tests/java/variants/derive.py               rewrites their expect.tsv
    python3 tests/java/variants/derive.py <set> <dir>   writes the set's broken
                                                        classes into <dir> (the build)

Reads every <subsystem>/records.h (KX_RECORD: field order, which fields a
writer checks, nested records and arrays), the natives' result types in
java/orvane/str/diskarray/DiskArrayUtilityJNI.java and the regular fixture
classes, and works out what each native answers when its result classes are
broken the set's way: a single result that cannot be built is 2817; a list,
and the natives their descriptions call quiet, end with the JVM's own error.
Run it after changing a record description or adding a family, and review
the expect.tsv changes as any other test change.
"""
import os
import re
import sys

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', '..'))
CLASSES = os.path.join(ROOT, 'java', 'orvane', 'str', 'diskarray')
VARIANTS = os.path.join(ROOT, 'tests', 'java', 'variants')

# Strings are not checked by default, everything else is (core/record.h).
UNCHECKED_KINDS = {'KX_STRING', 'KX_STRING_UNICODE', 'KX_HG_NAME_STRING'}
# Kinds that convert nothing into Java.
READ_ONLY_KINDS = {'PERF_BYTE_ROWS', 'PERF_LINKED_TEXT'}
ARRAY_KINDS = {'KX_RECORDS', 'KX_RECORDS2', 'PERF_LINKED_ARRAY'}

# Results that are not the declared type: the element classes of Object[] results.
ROOTS = {'KX_RaidLuImport': ['RaidGroup', 'LogicalUnit'], 'KX_GetLuMappingList': ['LuMappingHGInfo']}
# How a native answers a result it cannot build, where it is not the rule.
KINDS = {
    'KX_RaidLuImport': 'import',            # any element: 2817
    'KX_GetLuMappingList': 'mapping',       # a table not built: null, quietly
    'KX_GetTurboLU': 'quiet',               # the writer's null is returned as it is
    'KX_LogicalUnitFormatStatusList': 'quiet',
    # Arrays as long as the library's count, 0 with plain arguments.
    'KX_GetLabelList': 'counted', 'KX_GetLabelList2': 'counted',
    'KX_GetUnitParamTable': 'counted', 'KX_FibreInfoPermissionImport': 'counted',
}
# The session class is an input of nearly every native: writer-unchecked keeps
# its own session and credentials classes (a token left unmade).
KEPT = {'writer-unchecked': {'KXSessionInfo', 'KXUserInfo'}}
EXTRA = {'writer-unchecked': [('KX_LoginKXAccount', 'partial', 'a session whose session_id stays null'),
                              ('KX_LoginKXAccountAlertCheck', 'partial', None)]}


def split_top(s):
    out, depth, cur = [], 0, ''
    for ch in s:
        depth += (ch == '(') - (ch == ')')
        if ch == ',' and depth == 0:
            out.append(cur.strip())
            cur = ''
        else:
            cur += ch
    if cur.strip():
        out.append(cur.strip())
    return out


def records():
    recs = {}
    for sub in sorted(os.listdir(ROOT)):
        path = os.path.join(ROOT, sub, 'records.h')
        if not os.path.isfile(path):
            continue
        text = re.sub(r'//[^\n]*', '', open(path).read())
        for m in re.finditer(r'\bKX_RECORD(?:_NO_FLUSH)?\(', text):
            i = j = m.end()
            depth = 1
            while depth:
                depth += (text[j] == '(') - (text[j] == ')')
                j += 1
            parts = split_top(text[i:j - 1])
            if parts[0] == 'Class':
                continue  # the macro's own definition
            fields = []
            for p in parts[2:]:
                checked = None
                w = re.match(r'(KX_UNCHECKED|KX_CHECKED)\((.*)\)$', p, re.S)
                if w:
                    checked, p = w.group(1) == 'KX_CHECKED', w.group(2).strip()
                k = re.match(r'(\w+)\((.*)\)$', p, re.S)
                kind, args = k.group(1), split_top(k.group(2))
                name = args[0] + ('_str' if kind == 'KX_HG_NAME_STRING' else '')
                elem = next((e.group(1) for a in args[1:] for e in [re.search(r'rec::(\w+)', a)] if e), None)
                writes = kind not in READ_ONLY_KINDS and not (kind == 'KX_CUSTOM' and args[2] == 'nullptr')
                fields.append(dict(name=name, kind=kind, elem=elem, writes=writes,
                                   checked=(kind not in UNCHECKED_KINDS) if checked is None else checked))
            recs[parts[0]] = fields
    return recs


RECS = records()


def natives():
    decl = open(os.path.join(CLASSES, 'DiskArrayUtilityJNI.java')).read()
    out = {}
    for m in re.finditer(r'native\s+([\w\[\]]+)\s+(KX_\w+)\s*\(', decl):
        ret, name = m.group(1), m.group(2)
        roots = ROOTS.get(name) or ([ret.rstrip('[]')] if ret.rstrip('[]') in RECS else [])
        if roots:
            kind = KINDS.get(name, 'list' if ret.endswith('[]') else 'single')
            out[name] = (kind, roots)
    return out


def tree(cls, seen=None):
    seen = [] if seen is None else seen
    if cls not in seen:
        seen.append(cls)
        for f in RECS[cls]:
            if f['elem'] and f['writes']:
                tree(f['elem'], seen)
    return seen


def last(cls, checked):
    names = [f['name'] for f in RECS[cls] if f['writes'] and f['checked'] == checked]
    return names[-1] if names else None


def write(cls, broken):
    """'ok'; 'null' (dropped, the JVM's error pending); 'pending' (built, error pending)."""
    b = broken.get(cls)
    if b == 'unusable':
        return 'null'
    pending = False
    for f in RECS[cls]:
        if not f['writes']:
            continue
        fails = pending or b == f['name']
        if not fails and f['elem']:
            unusable = f['kind'] in ARRAY_KINDS and broken.get(f['elem']) == 'unusable'
            fails = unusable or write(f['elem'], broken) != 'ok'
        if fails:
            pending = True  # every later field fails too: nothing runs with an error pending
            if f['checked']:
                return 'null'
    return 'pending' if pending else 'ok'


def outcome(name, kind, roots, broken, error):
    if kind == 'counted':
        if broken.get(roots[0]) != 'unusable':
            return 'full'  # no element to build
        return '-1' if name == 'KX_GetUnitParamTable' else error
    if kind == 'list' and broken.get(roots[0]) == 'unusable':
        return error  # the array itself cannot be made
    built = [write(r, broken) for r in roots]
    if kind == 'single':
        return {'ok': 'full', 'null': '2817', 'pending': error}[built[0]]
    if kind in ('list', 'quiet'):
        return 'full' if built[0] == 'ok' else error
    if kind == 'import':
        return 'full' if all(b == 'ok' for b in built) else '2817'
    if kind == 'mapping':
        return {'ok': 'full', 'null': error, 'pending': '2817'}[built[0]]
    raise ValueError(kind)


def with_doc(text, cls, doc):
    return re.sub(r'\n(?:/\*\*.*?\*/\n)?(public (?:final )?class ' + cls + r'\b)', '\n/** ' + doc + ' */\n\\1',
                  text, count=1, flags=re.S)


def lacking(text, cls, name, what):
    text, n = re.subn(r'(\bpublic\s+[\w\[\]<>.]+\s+)' + re.escape(name) + r'\b', r'\g<1>' + name + '_absent', text)
    if n != 1:
        sys.exit('%s: no single field %s' % (cls, name))
    text = re.sub(r'(?<![\w.])' + re.escape(name) + r'(?=\s*=)', name + '_absent', text)
    return with_doc(text, cls, 'Lacks %s, %s.' % (name, what))


def unusable(text, cls):
    text = with_doc(text, cls, 'Cannot be initialised: the JVM cannot find it for the bridge.')
    return re.sub(r'(public (?:final )?class ' + cls + r'\b[^{]*\{\n)',
                  r'\1    static {\n        if (!Boolean.getBoolean("kx.never")) '
                  r'throw new IllegalStateException("unusable class");\n    }\n\n', text, count=1)


SETS = {
    'writer-last-checked': "each result class lacks\n# its last checked field",
    'writer-unchecked': "each result class lacks\n# its last unchecked field, the session class its token",
    'missing-classes': "the element class of\n# every array the natives create cannot be found",
}


def derive(name, nat):
    classes = []
    for kind, roots in nat.values():
        for r in roots:
            classes += [c for c in tree(r) if c not in classes]
    kept = KEPT.get(name, set())
    if name == 'missing-classes':
        broken = {}
        for kind, roots in nat.values():
            if kind in ('list', 'counted'):
                broken[roots[0]] = 'unusable'
        for c in classes:
            for f in RECS[c]:
                if f['writes'] and f['kind'] in ARRAY_KINDS:
                    broken[f['elem']] = 'unusable'
        error = 'ClassNotFoundException'
    else:
        checked = name == 'writer-last-checked'
        broken = {c: last(c, checked) for c in classes if last(c, checked) and c not in kept}
        error = 'NoSuchFieldError'
    lines = []
    for n in sorted(nat):
        kind, roots = nat[n]
        touched = any(c in broken for r in roots for c in tree(r))
        if touched or (name == 'missing-classes' and kind in ('list', 'counted')):
            lines.append((n, outcome(n, kind, roots, broken, error), None))
    return broken, lines + EXTRA.get(name, [])


def write_classes(name, broken, out):
    folder = os.path.join(out, 'orvane', 'str', 'diskarray')
    os.makedirs(folder, exist_ok=True)
    written = []
    for cls, how in sorted(broken.items()):
        text = open(os.path.join(CLASSES, cls + '.java')).read()
        if how == 'unusable':
            text = unusable(text, cls)
        else:
            what = ('the last field whose failure drops the object' if name == 'writer-last-checked'
                    else 'its last unchecked field')
            text = lacking(text, cls, how, what)
        written.append(os.path.join(folder, cls + '.java'))
        open(written[-1], 'w').write(text)
    with open(os.path.join(out, 'sources.list'), 'w') as out_list:
        out_list.write(''.join(path + '\n' for path in written))


def write_expect(name, header, lines):
    with open(os.path.join(VARIANTS, name, 'expect.tsv'), 'w') as out:
        out.write('# Native with plain arguments, and what it answers when %s (see VariantTable).\n'
                  '# Written by derive.py.\n' % header)
        for n, o, note in lines:
            out.write(('%-40s %s' % (n, o)).rstrip() + ('    # ' + note if note else '') + '\n')


def main(args):
    nat = natives()
    if len(args) == 2:
        # the build: the set's classes into a folder of the build tree
        broken, _ = derive(args[0], nat)
        write_classes(args[0], broken, args[1])
        return
    if args:
        sys.exit('usage: derive.py [<set> <output folder>]')
    for name, header in SETS.items():
        broken, lines = derive(name, nat)
        write_expect(name, header, lines)
        print('%s: %d classes, %d natives' % (name, len(broken), len(lines)))


if __name__ == '__main__':
    main(sys.argv[1:])
