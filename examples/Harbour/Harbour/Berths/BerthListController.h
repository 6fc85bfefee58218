#import <UIKit/UIKit.h>

@interface BerthListController : UITableViewController

@property (strong, nonatomic) NSArray *berths;

@end
