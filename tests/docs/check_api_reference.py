#!/usr/bin/env python3
"""Checks the generated API reference: every name in the export table has a documented
entry, and every exported function that an example calls links back to that example.

usage: check_api_reference.py EXPORTS.def XML_DIR HTML_DIR EXAMPLES_DIR
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ET


def exported_names(def_file):
    names = []
    in_exports = False
    for line in pathlib.Path(def_file).read_text().splitlines():
        line = line.split(';', 1)[0].strip()
        if not line:
            continue
        if line.upper() == 'EXPORTS':
            in_exports = True
        elif in_exports:
            names.append(line.split()[0].split('=')[0])
    return names


def documented_functions(xml_dir):
    root = ET.parse(pathlib.Path(xml_dir) / 'tessarin_8h.xml').getroot()
    docs = {}
    for member in root.iter('memberdef'):
        if member.get('kind') != 'function':
            continue
        text = ''.join(member.find('briefdescription').itertext())
        text += ''.join(member.find('detaileddescription').itertext())
        docs[member.findtext('name')] = text.strip()
    return docs


def html_entries(html_dir):
    """Function name -> example pages its entry in the reference links to."""
    html = (pathlib.Path(html_dir) / 'tessarin_8h.html').read_text()
    links = {}
    for entry in re.split(r'<h2 class="memtitle">', html)[1:]:
        name = re.search(r'</span>\s*(\w+)\(\)', entry) or re.search(r'(\w+)\(\)', entry)
        if not name:
            continue
        section = re.search(r'<dl class="section examples">(.*?)</dl>', entry, re.S)
        links[name.group(1)] = set(re.findall(r'href="([\w.-]+-example\.html)', section.group(1))) if section else set()
    return links


def example_pages(html_dir):
    """Example path (as named in its \\example block) -> its page."""
    html = (pathlib.Path(html_dir) / 'examples.html').read_text()
    return {name: page for page, name in re.findall(r'<a class="el" href="([\w.-]+-example\.html)">([^<]+)</a>', html)}


def main(def_file, xml_dir, html_dir, examples_dir):
    failures = []
    exports = exported_names(def_file)
    docs = documented_functions(xml_dir)
    for name in exports:
        if name not in docs:
            failures.append(f'{name}: exported but has no entry in the reference')
        elif not docs[name]:
            failures.append(f'{name}: entry has no description')

    links = html_entries(html_dir)
    failures += [f'{name}: no entry of its own in the reference page' for name in exports if name not in links]
    pages = example_pages(html_dir)
    sources = sorted(pathlib.Path(examples_dir).rglob('*.c'))
    if not sources:
        failures.append('no example sources found')
    for source in sources:
        called = set(re.findall(r'\b(\w+)\s*\(', source.read_text())) & set(exports)
        if not called:
            continue  # a helper of the examples, not an example of the library
        page = pages.get(str(source.relative_to(examples_dir)))
        if page is None:
            failures.append(f'{source.name}: not in the reference\'s examples (missing \\example block?)')
            continue
        for name in sorted(called):
            if page not in links.get(name, set()):
                failures.append(f'{name}: entry does not link the example {source.name}')

    for f in failures:
        print('FAIL', f)
    print(f'{len(exports)} exports checked, {len(sources)} examples, {len(failures)} failures')
    return 1 if failures else 0


if __name__ == '__main__':
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
