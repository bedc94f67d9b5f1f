package orvane.str.diskarray;

public class CreateRaidGroup {
    public int create_mode;
    public int rgnum;
    public int level;
    public int drive_type;
    public int drive_capa;
    public int parity_hdu_count;
    public int parity_count;
    public CreateRgDrive[] rgdrv;
}
