NSLocalizedString(@"Every source counts", nil);
