#import "TideTable.h"

@implementation TideTable

- (void)viewDidLoad {
    [super viewDidLoad];
    self.title = NSLocalizedString(@"Tides", @"Title of the tide table");
}

- (NSString *)nameOfTide:(BOOL)high {
    return high ? NSLocalizedString(@"High water", @"Row of the tide table")
                : NSLocalizedString(@"Low water", @"Row of the tide table");
}

- (NSString *)tableView:(UITableView *)table titleForHeaderInSection:(NSInteger)section {
    NSArray *days = @[ NSLocalizedString(@"Today", @"Section of the tide table"),
                       NSLocalizedString(@"Tomorrow", @"Section of the tide table") ];
    return days[section];
}

- (NSString *)tableView:(UITableView *)table titleForFooterInSection:(NSInteger)section {
    return NSLocalizedString(
        @"Heights above chart datum.",
        @"Below the table"
    );
}

@end
