def pages(share):
    return []
