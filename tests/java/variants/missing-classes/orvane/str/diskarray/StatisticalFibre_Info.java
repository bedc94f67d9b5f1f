package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalFibre_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int tbl_id;
    public int ube;
    public int der;
    public int per;
    public int dpe;
    public int see;
    public int rma;
    public int rta;
    public int sta;
    public int mdpe;
    public int ope;
    public int ipe;
    public int flt;
    public int os;
    public int ls;
    public int drs;
    public int lpe;
    public int lpb;
    public int ols;
    public int lst;
    public int lpf;
    public int ba;
    public int lf;
    public int ce;
    public int ew;
    public int lup;
    public int ldn;
    public int loss_of_sig;
    public int bad_rx_char;
    public int loss_of_sync;
    public int link_fail;
    public int rx_eofa;
    public int dis_frm;
    public int bad_crc;
    public int proto_err;
    public int sest_lru;
    public int dis_frm_cnt;
    public int pes;
    public int rfpe;
    public int wfpe;
    public int pesc;
    public int peid;
    public int peod;
    public int ape;
    public int sbce;
    public int rbce;
    public int dte;
    public int mie;
    public int ssdr;
    public int rsce;
    public int usc;
    public int scd;
    public int softrst;
    public int ill_frame;
    public int rstp;
    public int logo;
    public int implogo;
    public int tprlo;
    public int abts;
    public int trs;
    public int cts;
    public int ats;
    public int frsv;
    public int trs_spread;
    public int rstlip_syori;
    public int lur;
    public int lur_spread;
    public int tprlo_spread;
    public int clearaca;
}
