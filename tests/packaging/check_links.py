#!/usr/bin/env python3
"""Link checker for what ships: every local link and image in the HTML pages and the
Markdown files under the given folders must name a file that exists (and, with a
fragment, an anchor in it). Links to the web are listed but not fetched.

usage: check_links.py FOLDER...
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse


class Links(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.links, self.anchors = [], set()

    def handle_starttag(self, tag, attrs):
        for key, value in attrs:
            if key in ('href', 'src') and value is not None:
                self.links.append(value)
            if key in ('id', 'name') and value:
                self.anchors.add(value)


def parse_html(path):
    parser = Links()
    parser.feed(path.read_text(errors='replace'))
    return parser


MARKDOWN_LINK = re.compile(r'!?\[[^\]]*\]\(([^)\s]+)(?:\s+"[^"]*")?\)')


def links_of(path):
    if path.suffix == '.md':
        return MARKDOWN_LINK.findall(path.read_text())
    return parse_html(path).links


def check_link(page, link, anchors_cache):
    parts = urllib.parse.urlsplit(link)
    if parts.scheme in ('http', 'https', 'mailto'):
        return None
    if parts.scheme or link.startswith('//'):
        return f'{page}: unexpected link {link}'
    target = page if not parts.path else (page.parent / urllib.parse.unquote(parts.path)).resolve()
    if not target.exists():
        return f'{page}: {link}: no such file'
    if parts.fragment and target.suffix == '.html':
        if target not in anchors_cache:
            anchors_cache[target] = parse_html(target).anchors
        if parts.fragment not in anchors_cache[target]:
            return f'{page}: {link}: no anchor {parts.fragment}'
    return None


def main(folders):
    failures, pages, links, external = [], 0, 0, set()
    anchors_cache = {}
    for folder in map(pathlib.Path, folders):
        if not folder.is_dir():
            failures.append(f'{folder}: no such folder')
            continue
        for page in sorted(list(folder.rglob('*.html')) + list(folder.rglob('*.md'))):
            pages += 1
            for link in links_of(page):
                links += 1
                if urllib.parse.urlsplit(link).scheme in ('http', 'https'):
                    external.add(link)
                error = check_link(page.resolve(), link, anchors_cache)
                if error:
                    failures.append(error)
    for f in failures:
        print('FAIL', f)
    for link in sorted(external):
        print('external (not fetched):', link)
    print(f'{pages} pages, {links} links, {len(failures)} broken')
    return 1 if failures or pages == 0 else 0


if __name__ == '__main__':
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1:]))
