NSLocalizedString(@"Nobody references this", nil);
